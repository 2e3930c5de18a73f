#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// While it stands, leaks are not counted: an Error on its way through Qt's own frames leaves behind what they had in
/// hand.
struct SansCompter
{
    SansCompter()
    {
#ifdef __SANITIZE_ADDRESS__
        __lsan_disable();
#endif
    }
    ~SansCompter()
    {
#ifdef __SANITIZE_ADDRESS__
        __lsan_enable();
#endif
    }
    SansCompter(const SansCompter &) = delete;
    SansCompter &operator=(const SansCompter &) = delete;
};
