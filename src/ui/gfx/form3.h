#pragma once

#include "gfx/chooser_kind.h"
#include "gfx/sprite_kind.h"

#include <QDialog>

#include <string>

class QListWidget;
class QPushButton;
class QString;

namespace shell {
struct Session;
}

namespace gfx {

class FileList;

/// The graphics file selection dialog: which descriptor files are loaded as sprite sets of which
/// kind. Every press takes effect at once.
class Form3 : public QDialog {
    Q_OBJECT

  public:
    Form3(shell::Session& session, QWidget* owner);

  private:
    QListWidget* make_list(SpriteKind kind);
    QPushButton* make_arrow(const char* name, SpriteKind kind, const char* caption);
    QPushButton* make_button(const QString& name, const char* design_caption);
    void lay_out();

    void show_descriptors();
    void show_sets(SpriteKind kind);
    void add_sets(SpriteKind kind);
    void take_set_out(SpriteKind kind);
    void choose_folder(ChooserKind kind);

    QListWidget& list(SpriteKind kind) const { return *lists_[kind]; }

    shell::Session& session_;
    FileList* files_;
    std::string folder_; // of the files, stored and absolute
    KindArray<QListWidget*> lists_{};
};

} // namespace gfx
