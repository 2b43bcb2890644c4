#pragma once

#include "Catalogue.h"

namespace figures {

/// Lays finished pictures out for the eye, in order, with code and number beneath each.
class ContactSheet {
public:
    /// Writes figure-1.jpg, figure-2.jpg, ... to `out`. Throws PoseError when a picture is missing.
    static void make(const std::vector<Row>& rows, const std::filesystem::path& pictures,
                     const std::filesystem::path& out);
};

} // namespace figures
