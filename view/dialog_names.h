#pragma once

#include <string>

namespace tarnwick {

class Form;
class Label;
class Widget;

/// The text that a control shows: a caption, or what was typed into a box. Empty for what shows none.
const std::string& written_text(const Widget& widget);

/// The label that stands beside a control and says what it is for; null where there is none, and for labels,
/// which name themselves.
const Label* naming_label(const Widget& widget);

/// What is read out for a control: after a label with what stands beside it, a value comes after what it is,
/// and nothing of a text is left out.
std::string spoken_name(const Widget& widget);

/// What is read out for a window: its title, or the program's name where it has none.
std::string spoken_title(const Form& form);

}  // namespace tarnwick
