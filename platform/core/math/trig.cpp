#include "platform/core/math/trig.h"
