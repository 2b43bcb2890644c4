#pragma once

namespace toolkit {

/// Shows the hourglass for the whole program as long as it lives.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    /// Gives the ordinary pointer back while a box or a dialog waits for the user.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        int paused_ = 0; ///< hourglasses to come back
    };
};

} // namespace toolkit
