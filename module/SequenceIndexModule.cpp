#include "module/SequenceIndexModule.h"

namespace Vantrel {

SequenceIndexModule::SequenceIndexModule(const qelcore::UTF8String& moduleID) : HSL::Module(moduleID) {}

SequenceIndexModule::~SequenceIndexModule() = default;

}  // namespace Vantrel
