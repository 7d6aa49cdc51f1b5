#include "support/PanelHostCalls.h"
