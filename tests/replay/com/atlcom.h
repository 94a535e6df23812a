// A stand-in of ATL; all of it is in atlbase.h.
#pragma once

#include "atlbase.h"
