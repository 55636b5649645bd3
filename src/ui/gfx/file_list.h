#pragma once

#include "gfx/choice_list.h"

#include <string>
#include <vector>

namespace gfx {

/// The files of one folder, of which the user selects at most one.
class FileList : public ChoiceList {
    Q_OBJECT

  public:
    explicit FileList(QWidget* parent);

    /// Lists the folder's files that match the pattern without regard to letter case, sorted. None
    /// is selected.
    void show_files(const QString& native_folder, const QString& pattern);

    /// Returns the selected file's name; empty when none is.
    std::string file_name() const;

    /// Returns the names of all files listed.
    std::vector<std::string> names() const;
};

} // namespace gfx
