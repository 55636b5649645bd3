#pragma once

#include "shell/command_line.h"

namespace shell {

/// Does what the command line asks for without a window: reads the province file, writes values,
/// saves, checks and compares, in this order, and prints what the check and the comparison find on
/// standard output. Returns the exit status: 0 where they found nothing but hints, 1 where they
/// found problems or differences, 3 for a file that cannot be read or written, with the reason on
/// standard error.
int batch_run(const CommandLine& line);

} // namespace shell
