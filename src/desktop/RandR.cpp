#include "desktop/RandR.h"

#include <utility>
#include <vector>
#include <xcb/randr.h>

namespace {

/// What the X library allocates with malloc.
template <class T> using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <class T> Reply<T> owned(T* reply) {
    return {reply, &std::free};
}

constexpr int sideways = XCB_RANDR_ROTATION_ROTATE_90 | XCB_RANDR_ROTATION_ROTATE_270;

} // namespace

/// The sizes that the server offers for the screen, as they stand unrotated, and the present one.
struct RandR::Modes {
    xcb_window_t root = 0;
    int depth = 0;
    int rate = 0;
    xcb_timestamp_t stamp = 0;
    uint16_t rotation = 0;
    size_t present = 0;
    std::vector<std::pair<int, int>> sizes;
};

RandR::RandR() : connection_(xcb_connect(nullptr, &screen_)) {}

RandR::~RandR() {
    xcb_disconnect(connection_);
}

std::unique_ptr<RandR::Modes> RandR::modes() const {
    if (xcb_connection_has_error(connection_) != 0)
        return nullptr;
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection_, &xcb_randr_id);
    if (extension == nullptr || extension->present == 0)
        return nullptr;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
    for (int i = 0; i < screen_ && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    // The server sends frequencies only to a client that has named a version which knows them.
    const auto version = owned(
        xcb_randr_query_version_reply(connection_, xcb_randr_query_version(connection_, 1, 1), nullptr));
    const auto info = owned(xcb_randr_get_screen_info_reply(
        connection_, xcb_randr_get_screen_info(connection_, screens.data->root), nullptr));
    if (!version || !info)
        return nullptr;
    auto found = std::make_unique<Modes>();
    found->root = info->root;
    found->depth = screens.data->root_depth;
    found->rate = info->rate;
    found->stamp = info->config_timestamp;
    found->rotation = info->rotation;
    found->present = info->sizeID;
    const xcb_randr_screen_size_t* sizes = xcb_randr_get_screen_info_sizes(info.get());
    for (int i = 0; i < xcb_randr_get_screen_info_sizes_length(info.get()); ++i)
        found->sizes.emplace_back(sizes[i].width, sizes[i].height);
    return found;
}

bool RandR::read(host::DisplayMode& mode) const {
    const auto known = modes();
    if (!known || known->present >= known->sizes.size())
        return false;
    mode.width = known->sizes[known->present].first;
    mode.height = known->sizes[known->present].second;
    if ((known->rotation & sideways) != 0)
        std::swap(mode.width, mode.height);
    mode.bits = known->depth;
    mode.frequency = known->rate;
    return true;
}

bool RandR::set(const host::DisplayMode& mode) const {
    const auto known = modes();
    if (!known || mode.bits != known->depth)
        return false;
    auto wanted = std::pair(mode.width, mode.height);
    if ((known->rotation & sideways) != 0)
        std::swap(wanted.first, wanted.second);
    for (size_t i = 0; i < known->sizes.size(); ++i) {
        if (known->sizes[i] == wanted) {
            const auto reply = owned(xcb_randr_set_screen_config_reply(
                connection_,
                xcb_randr_set_screen_config(connection_, known->root, XCB_CURRENT_TIME, known->stamp,
                                            static_cast<uint16_t>(i), known->rotation, 0),
                nullptr));
            return reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
        }
    }
    return false;
}
