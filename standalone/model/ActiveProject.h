#pragma once

#include "standalone/model/ProjectModel.h"

namespace standalone {

/// The project model that exists, or null. [main-thread]
const ProjectModel* FindProjectModel() noexcept;

}  // namespace standalone
