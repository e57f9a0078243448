// SPDX-License-Identifier: MIT
#include "shell/zoom.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/desktop/host_settings.h"
#include "shell/toolkit/desktop/screen.h"
#include "shell/toolkit/drawing/scale.h"

namespace kalvon {

namespace {

constexpr std::array steps = {75, 100, 125, 150, 200, 250, 300, 400};  // Percent.

constexpr auto zoom_setting = "zoom";      // Per mille.
constexpr auto window_setting = "window";  // As the host says it.

bool zoom_is_named = false;

int Percent() { return static_cast<int>(std::lround(toolkit::Zoom() * 100)); }

void ZoomTo(int percent) { frm_glavni->ZoomTo(percent / 100.0); }

/// The size of the main window at 100 %, with its title.
constexpr int window_width = 640;
constexpr int window_height = 483 + toolkit::Strip::height;
constexpr int title_height = 32;

/// The largest step at which the window leaves room around it; on a screen with no room for the
/// smallest, what fits.
double FirstZoom() {
  const auto [width, height] = toolkit::Screen::FreeArea();
  double zoom = std::min(static_cast<double>(width) / window_width,
                         static_cast<double>(height - title_height) / window_height);
  for (const int step : steps)
    if (step * window_width <= 90 * width && step * window_height <= 75 * height)
      zoom = step / 100.0;
  return zoom;
}

}  // namespace

void ChooseZoom(std::optional<int> percent) {
  zoom_is_named = percent.has_value();
  const int saved = toolkit::GetSetting(zoom_setting, 0);
  if (percent)
    toolkit::Zoom(std::clamp(*percent, 50, 800) / 100.0);
  else
    toolkit::Zoom(saved > 0 ? saved / 1000.0 : FirstZoom());
}

void RestoreWindow() {
  const std::string place = toolkit::GetSetting(window_setting, std::string());
  if (!zoom_is_named && !place.empty()) frm_glavni->HostPlace(place);
}

void SaveWindow() {
  toolkit::SaveSetting(zoom_setting, static_cast<int>(std::lround(toolkit::Zoom() * 1000)));
  toolkit::SaveSetting(window_setting, frm_glavni->HostPlace());
}

void uvecaj() {
  const auto* next = std::ranges::upper_bound(steps, Percent());
  if (next != steps.end()) ZoomTo(*next);
}

void umanji() {
  const auto* next = std::ranges::lower_bound(steps, Percent());
  if (next != steps.begin()) ZoomTo(*std::ranges::prev(next));
}

void prirodna_velicina() { ZoomTo(100); }

void ceo_ekran() { frm_glavni->FullScreen(!frm_glavni->FullScreen()); }

void ShowZoom() {
  std::vector<toolkit::MenuRow> rows;
  rows.reserve(steps.size());
  for (const int step : steps) {
    rows.push_back({.text = std::to_string(step) + " %",
                    .action = [step] { ZoomTo(step); },
                    .checked = [step] { return step == Percent(); }});
  }
  frm_glavni->strip.ZoomMenu(std::to_string(Percent()) + " %", rows);
}

}  // namespace kalvon
