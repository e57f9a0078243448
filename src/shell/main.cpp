// SPDX-License-Identifier: MIT
#include "shell/events.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/application.h"

int main(int argc, char** argv) {
  toolkit::Application application(argc, argv);
  kalvon::BindEvents();
  kalvon::FrmGlavni& start = *kalvon::frm_glavni;
  if (!toolkit::Ended()) start.Show();
  const int status = application.Run();
  kalvon::UnloadForms();
  return status;
}
