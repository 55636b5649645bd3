#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// While it lives, the leak checker does not count: Qt's delivery of an event loses some bytes when
/// an exception crosses it. For tests of errors that end the program.
class LeaksExpected {
  public:
    LeaksExpected() {}

  private:
#ifdef __SANITIZE_ADDRESS__
    __lsan::ScopedDisabler disabler_;
#endif
};
