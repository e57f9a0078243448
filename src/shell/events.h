// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Binds every event of the four forms to its procedure, as each form is loaded.
void BindEvents();

/// Unloads the four forms.
void UnloadForms();

}  // namespace kalvon
