#pragma once

#include <QDialog>

#include <string>
#include <string_view>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace shell {
struct Session;
}

namespace base {
class ElidedLabel;
}

namespace gfx {

class FileList;
class FolderList;
struct Location;

/// The location chooser. The session's chooser kind says what is chosen; the choice lands in the
/// configuration's path of that kind, the answer in the cancelled flag: 0 confirmed, 1 cancelled.
class Form4 : public QDialog {
    Q_OBJECT

  public:
    Form4(shell::Session& session, QWidget* owner);

    /// Shows the chooser at the kind's stored path. Throws path not found when that path names no
    /// drive and folder.
    int exec() override;

  public slots:
    void reject() override;

  signals:
    /// A folder with complete terrain art was chosen.
    void terrain_art_accepted();

  private:
    void name_controls();
    void lay_out();
    void activate();
    void apply_captions();
    void show_drive_of(std::string_view path);
    void change_drive();
    void show_files();
    void take_selected_name();
    void confirm();
    bool take_choice();
    bool take_graphics_folder();
    bool take_terrain_art();
    bool take_file();
    bool take_name_to_save();
    bool can_take_open_folder();
    void report_missing_name();
    const Location& location() const;
    std::string& path() const;

    shell::Session& session_;
    QLabel* wanted_;
    base::ElidedLabel* shown_;
    QComboBox* drives_;
    FolderList* folders_;
    FileList* files_;
    QLabel* name_label_;
    QLineEdit* name_;
    QPushButton* confirm_;
    QPushButton* cancel_;
};

} // namespace gfx
