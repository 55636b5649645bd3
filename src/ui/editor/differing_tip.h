#pragma once

#include "editor/fields.h"
#include "shell/session.h"

#include <QString>

namespace editor {

/// Returns how many different values the selected provinces hold of the field and which are the
/// most frequent ones, in the words of the field's options where it has some.
QString differing_tip(const shell::Session& session, const Field& field);

} // namespace editor
