#ifndef LIB_PLATFORM_QUIT_ON_SIGNAL_H
#define LIB_PLATFORM_QUIT_ON_SIGNAL_H

namespace platform {

// From now on, SIGTERM, SIGINT and SIGHUP end the application's event loop as quit() does. Call it
// once, on the main thread, after the application object was created.
void QuitOnSignal();

}  // namespace platform

#endif
