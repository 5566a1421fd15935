#include "faces/scripted/properties.h"

#include <array>
#include <initializer_list>

#include "faces/scripted/json_text.h"
#include "surface/windows/picture.h"

namespace zelvo {
namespace {

constexpr long long longestInterval = 65'535;  // milliseconds

/// A property with the kinds that have it.
struct Property {
  std::string_view name;
  unsigned kinds;  // a bit for each kind
  std::string (*read)(const Control&);
  std::string (*write)(Control&, std::string_view);
};

constexpr unsigned Kinds(std::initializer_list<Kind> kinds) {
  unsigned bits = 0;
  for (const Kind kind : kinds) bits |= 1U << static_cast<unsigned>(kind);
  return bits;
}

std::string WritePicture(Control& control, std::string_view text) {
  std::string owner(text);
  if (!text.empty() && text.front() == '"') {
    if (std::string error = ReadQuoted(text, owner); !error.empty()) return error;
  }
  const auto picture = PictureOwnedBy(owner);
  if (!picture || text.empty()) return "the program has no such picture";
  control.Picture = *picture;
  return "";
}

std::string WriteEnabled(Control& control, std::string_view text) {
  bool enabled = control.Enabled();
  std::string error = ReadFlag(text, enabled);
  control.SetEnabled(enabled);
  return error;
}

std::string WriteValue(Control& control, std::string_view text) {
  bool value = false;
  std::string error = ReadFlag(text, value);
  if (error.empty()) control.SetValue(value);
  return error;
}

std::string WriteInterval(Control& control, std::string_view text) {
  long long interval = 0;
  std::string error = ReadWhole(text, 0, longestInterval, interval);
  if (error.empty()) control.SetInterval(static_cast<int>(interval));
  return error;
}

constexpr std::array<Property, 8> properties = {{
    {"Caption", Kinds({Kind::Label, Kind::Button, Kind::Panel, Kind::Option, Kind::CheckBox}),
     [](const Control& c) { return Quoted(c.Caption); },
     [](Control& c, std::string_view text) { return ReadQuoted(text, c.Caption); }},
    {"Text", Kinds({Kind::TextBox}), [](const Control& c) { return Quoted(c.Text); },
     [](Control& c, std::string_view text) { return ReadQuoted(text, c.Text); }},
    {"Picture", Kinds({Kind::Image}),
     [](const Control& c) { return Quoted(PictureOwner(c.Picture)); }, WritePicture},
    {"Enabled", Kinds({Kind::Button, Kind::Option, Kind::Timer}),
     [](const Control& c) { return Flag(c.Enabled()); }, WriteEnabled},
    {"Value", Kinds({Kind::Option, Kind::CheckBox}),
     [](const Control& c) { return Flag(c.Value()); }, WriteValue},
    {"Interval", Kinds({Kind::Timer}),
     [](const Control& c) { return std::to_string(c.Interval()); }, WriteInterval},
    {"Tag", ~0U, [](const Control& c) { return Quoted(c.Tag); },
     [](Control& c, std::string_view text) { return ReadQuoted(text, c.Tag); }},
    {"Visible", ~0U, [](const Control& c) { return Flag(c.Visible); },
     [](Control& c, std::string_view text) { return ReadFlag(text, c.Visible); }},
}};

bool Has(const Control& control, const Property& property) {
  return ((property.kinds >> static_cast<unsigned>(control.kind())) & 1U) != 0;
}

const Property* Find(const Control& control, std::string_view name) {
  for (const Property& property : properties) {
    if (property.name == name && Has(control, property)) return &property;
  }
  return nullptr;
}

}  // namespace

std::optional<std::string> ReadProperty(const Control& control, std::string_view property) {
  const Property* found = Find(control, property);
  if (found == nullptr) return std::nullopt;
  return found->read(control);
}

std::string WriteProperty(Control& control, std::string_view property, std::string_view text) {
  const Property* found = Find(control, property);
  return found == nullptr ? "the control has no such property" : found->write(control, text);
}

std::string PropertiesAsJson(const Control& control) {
  std::string json;
  for (const Property& property : properties) {
    if (!Has(control, property)) continue;
    json.append(json.empty() ? "{" : ",").append(Quoted(property.name)).append(":");
    json += property.read(control);
  }
  return json + '}';
}

}  // namespace zelvo
