#include "host/qelcore/UTF8StringStream.h"

namespace qelcore {

oUTF8StringStream::oUTF8StringStream() = default;
oUTF8StringStream::~oUTF8StringStream() = default;

}  // namespace qelcore
