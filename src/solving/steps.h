// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/step.h"

namespace kalvon {

/// A step to be filled with changes, made in the word that is selected.
Step BeginStep(StepKind kind);

/// Keeps a step that changed a cell, so that it can be taken back, and tells of it.
void EndStep(Step step);

}  // namespace kalvon
