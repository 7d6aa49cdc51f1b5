#include "host/qelcore/Reference.h"

namespace qelcore {

ICounted::~ICounted() = default;
IUnknown::~IUnknown() = default;

}  // namespace qelcore
