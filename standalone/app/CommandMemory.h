#pragma once

namespace standalone {

/// Lets what one step of a command gives back serve its next step, on whichever thread, instead of
/// going back to the system, which would hand it out again page by page; the first of it comes in large
/// pages, where the system has them. For commands that end soon, before they start threads.
void KeepMemoryBetweenSteps();

}  // namespace standalone
