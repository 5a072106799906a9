// What every export file includes: the public declarations, the frame, and the
// attribute that makes a function part of the library's surface. Everything
// else in the library is built with hidden visibility.
#pragma once

#include "qelm/qelm.h"

#include "checks.h"
#include "driver.h"
#include "views.h"

#define QELM_API extern "C" __attribute__((visibility("default")))
