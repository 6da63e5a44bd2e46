// Asks an X window to close, as a window manager does when the user closes it: one argument, the
// window's id. Ends with 1 when there is no display or no such number.
#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>

namespace {

void SendDelete(Display* display, Window window) {
  XEvent event = {};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
  event.xclient.data.l[1] = CurrentTime;
  XSendEvent(display, window, False, NoEventMask, &event);
  XSync(display, False);
}

}  // namespace

int main(int argc, char** argv) {
  const Window window = argc == 2 ? std::strtoul(argv[1], nullptr, 0) : 0;
  Display* display = XOpenDisplay(nullptr);
  if (window == 0 || display == nullptr) {
    std::fputs("usage: quill_close_window WINDOW, with DISPLAY set\n", stderr);
    return 1;
  }
  SendDelete(display, window);
  XCloseDisplay(display);
  return 0;
}
