#ifndef LIB_PLATFORM_QUIT_ON_SIGNAL_H
#define LIB_PLATFORM_QUIT_ON_SIGNAL_H

namespace platform {

// Turns SIGTERM, SIGINT and SIGHUP into a regular end of the application's event loop, once and for
// all. Call it on the main thread when the application object exists.
void QuitOnSignal();

}  // namespace platform

#endif
