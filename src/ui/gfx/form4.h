#pragma once

#include <QDialog>

#include <string>
#include <string_view>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace shell {
struct Session;
}

namespace gfx {

class FileList;
class FolderList;

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

  private:
    void lay_out();
    void activate();
    void show_drive_of(std::string_view path);
    void change_drive();
    void show_files();
    void take_selected_name();
    void confirm();
    bool confirm_file();
    bool confirm_name_to_save();
    void confirm_terrain_art();
    void report_missing_name();
    std::string& path() const;

    shell::Session& session_;
    QComboBox* drives_;
    FolderList* folders_;
    FileList* files_;
    QLineEdit* name_;
    QPushButton* confirm_;
    QPushButton* cancel_;
};

} // namespace gfx
