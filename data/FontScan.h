#pragma once

#include "data/ListText.h"
#include "host/BE/Model.h"

namespace Vantrel {

/// The fonts of a title: all that its text documents use, and those of them that this machine lacks.
struct FontLists {
  NameList used;
  NameList missing;
};

/// The fonts of a clip's text components in order of first use, each once. Components without a text
/// document add none. [any-thread] Throws: null_pointer_exception for an empty component.
FontLists ScanFonts(const BE::IComponentOwner& components);

}  // namespace Vantrel
