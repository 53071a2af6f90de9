#pragma once

// The platform's headers, in the one order and with the one set of switches that all files here can live
// with.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef UNICODE
#define UNICODE
#endif

#include <windows.h>
// clang-format off: stand on the one above
#include <dispex.h>
#include <ole2.h>
#include <oleauto.h>
// clang-format on
