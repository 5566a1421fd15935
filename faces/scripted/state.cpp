#include "faces/scripted/state.h"

#include "faces/scripted/json_text.h"
#include "faces/scripted/properties.h"
#include "faces/scripted/variables.h"

namespace zelvo {
namespace {

std::string_view NameOf(WindowState state) {
  return state == WindowState::Shown ? "shown" : "hidden";
}

}  // namespace

std::string StateAsJson(Game& game) {
  std::string windows;
  std::string controls;
  for (const Window* window : game.Windows()) {
    if (!window->IsLoaded()) continue;
    windows.append(windows.empty() ? "" : ",").append(Quoted(window->name()));
    windows.append(":{\"state\":").append(Quoted(NameOf(window->state())));
    windows.append(",\"Caption\":").append(Quoted(window->Caption)).append("}");
    for (const Control* control : window->controls()) {
      std::string name(window->name());
      name.append(".").append(control->FullName());
      controls.append(controls.empty() ? "" : ",").append(Quoted(name)).append(":");
      controls += PropertiesAsJson(*control);
    }
  }
  return "{\"variables\":" + VariablesAsJson(game) + ",\"windows\":{" + windows +
         "},\"controls\":{" + controls +
         "},\"pointer\":" + std::to_string(static_cast<int>(game.pointer())) + "}";
}

}  // namespace zelvo
