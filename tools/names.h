#pragma once

#include "random.h"

#include <set>
#include <string>
#include <string_view>

namespace sample {

/// Returns the Windows-1252 bytes of a text in UTF-8, "?" for what lies beyond its Latin letters.
std::string code_page(std::string_view utf8);

/// Invents names that sound like the speech of a region. No two provinces have the same one.
class Names {
  public:
    /// Returns a name for a province, in Windows-1252 bytes.
    std::string province(std::string_view speech, Random& random);

    /// Returns a name for the province's city.
    std::string city(std::string_view speech, const std::string& province, Random& random);

    std::string sea(std::string_view speech, Random& random);
    std::string river(std::string_view speech, Random& random);

  private:
    std::set<std::string> given_;
};

} // namespace sample
