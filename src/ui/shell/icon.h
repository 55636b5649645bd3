#pragma once

#include <QIcon>

namespace shell {

/// Returns the program's icon: a coast with two provinces.
QIcon program_icon();

} // namespace shell
