#include "shell/read_report.h"

#include "base/files.h"
#include "base/shown_text.h"

#include <iostream>

namespace shell {

void tell_what_was_read(const std::string& path, const data::ReadReport& read) {
    std::cerr << base::message_text(base::shown_path(path)).toStdString()
              << ": provinces read: " << read.provinces;
    if (read.provinces == 0 && read.lines == 0)
        std::cerr << ": the file is empty";
    else if (read.provinces == 0 && !read.has_carriage_return)
        std::cerr << ": no line of it ends with a carriage return (lines must end with carriage "
                     "return and line feed)";
    else if (read.provinces == 0)
        std::cerr << ": none of its " << read.lines << " lines begins with an identifier from 1 to "
                  << data::last_province;
    std::cerr << std::endl;
}

} // namespace shell
