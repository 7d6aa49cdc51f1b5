#include "support/AllocationFaultOperators.h"
