// Qt does not let go of what its event holds when an error passes through it; a program ends then. What is allocated
// while one of these lives is no leak.
#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace orvelle::qt {

class ToleratedLeaks {
#ifdef __SANITIZE_ADDRESS__
    __lsan::ScopedDisabler tolerated;
#endif
};

}  // namespace orvelle::qt
