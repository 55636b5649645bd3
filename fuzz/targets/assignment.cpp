#include "shell/assignment.h"

#include "targets.h"

#include <stdexcept>
#include <string>

void fuzz::assignment(std::string_view bytes) {
    shell::Assignment taken;
    try {
        taken = shell::read_assignment(bytes);
    } catch (const std::invalid_argument&) {
        return;
    }
    assert(taken.column.number >= 2 && taken.column.number <= 56);
    assert(bytes.ends_with("=" + taken.value));
    assert(taken.value.find_first_of(";\r\n") == std::string::npos);

    const auto by_number =
        shell::read_assignment(std::to_string(taken.column.number) + "=" + taken.value);
    assert(by_number.column == taken.column && by_number.value == taken.value);
}
