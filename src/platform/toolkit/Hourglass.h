#pragma once

namespace toolkit {

/// Shows the hourglass for the whole program as long as it lives.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace toolkit
