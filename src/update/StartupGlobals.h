#pragma once

namespace StartupGlobals {
// True in a build sold through an app store, which updates itself: no version
// check then. Cleared at every start.
inline bool AppStoreVersion = false;
} // namespace StartupGlobals
