#include "faces/desktop/lost_window.h"

#include <xcb/xproto.h>

namespace zelvo {

bool LostWindowWatch::nativeEventFilter(const QByteArray& type, void* message,
                                        qintptr* /*result*/) {
  if (type != "xcb_generic_event_t") return false;
  constexpr unsigned sentByProgram = 0x80;
  const auto* event = static_cast<const xcb_destroy_notify_event_t*>(message);
  if ((event->response_type & ~sentByProgram) == XCB_DESTROY_NOTIFY) lost_(event->window);
  return false;
}

}  // namespace zelvo
