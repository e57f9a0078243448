// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/step.h"

namespace kalvon {

/// A step to be filled with changes, made in the word that is selected.
Step BeginStep(StepKind kind);

/// Keeps a step that changed a cell, so that it can be taken back, and tells of it. One that
/// `goes_on` is taken back together with the last one.
void EndStep(Step step, bool goes_on = false);

}  // namespace kalvon
