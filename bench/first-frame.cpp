// Prints the time, in seconds of the steady clock, of the first drawing on the display after a new
// window has appeared. Prints "ready" before that, once it watches the display.

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Object>
using Owned = std::unique_ptr<Object, Free>;

struct Disconnect {
    void operator()(xcb_connection_t* display) const { xcb_disconnect(display); }
};
using Display = std::unique_ptr<xcb_connection_t, Disconnect>;

// Requests an event for everything that is drawn on the screen and for each window that appears.
// Returns false if the display can't report them.
bool Watch(xcb_connection_t* display) {
    const xcb_query_extension_reply_t* const extension =
        xcb_get_extension_data(display, &xcb_damage_id);
    if (xcb_connection_has_error(display) != 0 || extension == nullptr || !extension->present) {
        return false;
    }
    const Owned<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
        display, xcb_damage_query_version(display, XCB_DAMAGE_MAJOR_VERSION, 0), nullptr));
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display, root, XCB_CW_EVENT_MASK, &mask);
    xcb_damage_create(display, xcb_generate_id(display), root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    // The server replies in order, so this reply follows the events for what is on the screen now.
    // They don't count.
    const Owned<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
    while (const Owned<xcb_generic_event_t> past{xcb_poll_for_event(display)}) {
    }
    return version != nullptr && answer != nullptr;
}

bool WaitForFrame(xcb_connection_t* display) {
    const uint8_t drawn =
        xcb_get_extension_data(display, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
    bool mapped = false;
    while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(display)}) {
        const uint8_t type = event->response_type & 0x7F;  // without the flag for sent events
        mapped = mapped || type == XCB_MAP_NOTIFY;
        if (mapped && type == drawn) {
            return true;
        }
    }
    return false;
}

}  // namespace

int main() {
    const Display display(xcb_connect(nullptr, nullptr));
    if (!Watch(display.get())) {
        static_cast<void>(std::fputs("first-frame: the display can't be watched\n", stderr));
        return 1;
    }
    std::puts("ready");
    static_cast<void>(std::fflush(stdout));
    if (!WaitForFrame(display.get())) {
        return 1;
    }
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("%.6f\n", now.count());
    return 0;
}
