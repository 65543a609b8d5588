// The words in which a layout is described. Lengths are dialog units.
//
//   SetLayout(Column({Form({Line(*path_, Row({*path_, *browse_})),  // Path: [          ] [b]
//                           Line(*name_)}),                         // Name: [              ]
//                     Buttons({ok, cancel})},                       //       [ OK ] [Cancel]
//                    kUnrelated));
#pragma once

#include <vector>

#include "framework/Layout.h"

namespace qutav {

class CheckList;
class ListBox;
class Picture;
struct GroupBox;

namespace layout {

/// Gaps: between what belongs together, and between what does not.
inline constexpr int kRelated = 4;
inline constexpr int kUnrelated = 7;

using Parts = std::vector<Layout>;

// --- Controls ------------------------------------------------------------------------------------

/// A text that wraps at about a width, if it is longer.
Layout Wrapped(const Label& label, int width);
Layout Wrapped(const CheckBox& box, int width);
/// A field of one line that stretches from a width on.
Layout Field(const Control& field, int width);
/// One that keeps its width.
Layout Fixed(const Control& field, int width);
/// A field for a number.
Layout Number(const Edit& edit);
/// A field of several lines.
Layout Lines(const Edit& edit, int rows);
/// A list that shows some rows, and more where there is room.
Layout List(const ListBox& list, int rows, int width);
Layout List(const CheckList& list, int rows, int width);

// --- Together ------------------------------------------------------------------------------------

/// One below the other.
Layout Column(Parts parts, int gap = kRelated);
/// Side by side, their first lines in line.
Layout Row(Parts parts, int gap = kRelated);
/// Side by side, all as wide as the widest, sharing all room there is.
Layout Columns(Parts parts, int gap = kUnrelated);
/// Side by side, all as wide as the widest.
Layout SameWidth(Parts parts);
/// The same at the right end of their line.
Layout Buttons(Parts parts);
/// Takes room that nobody needs.
Layout Space();
/// A frame with a heading.
Layout Group(const GroupBox& box, Layout content);
/// A field's caption, above what holds the field.
Layout Above(const Control& captioned, Layout content);
/// Pictures with their bottoms in line and their captions below them.
Layout Gallery(const std::vector<const Picture*>& pictures);

// --- Forms ---------------------------------------------------------------------------------------

struct FormLine {
  Layout caption;
  Layout content;
};
using FormLines = std::vector<FormLine>;

/// A field behind its caption.
FormLine Line(const Edit& field);
FormLine Line(const ComboBox& field);
/// What holds a field, behind the field's caption.
FormLine Line(const Control& captioned, Layout content);
/// Anything behind a label.
FormLine Line(const Label& label, Layout content);
/// Anything in line with the fields.
FormLine Indented(Layout content);

/// Lines whose captions make one column.
Layout Form(FormLines lines);
/// One form's lines from several functions.
FormLines Joined(const std::vector<FormLines>& groups);

}  // namespace layout
}  // namespace qutav
