#pragma once

// The platform's headers, always in the same order and with the same macros.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef UNICODE
#define UNICODE
#endif

#include <windows.h>
// clang-format off: these need windows.h first
#include <dispex.h>
#include <ole2.h>
#include <oleauto.h>
// clang-format on
