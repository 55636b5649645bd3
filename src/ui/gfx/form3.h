#pragma once

#include "gfx/chooser_kind.h"
#include "gfx/sprite_kind.h"

#include <QDialog>
#include <QString>

#include <string>

class QGridLayout;
class QPushButton;

namespace shell {
struct Session;
}

namespace gfx {

class ChoiceList;
class FileList;

/// The graphics file selection dialog: which descriptor files are loaded as sprite sets of which
/// kind. Every press takes effect at once.
class Form3 : public QDialog {
    Q_OBJECT

  public:
    Form3(shell::Session& session, QWidget* owner);

  signals:
    /// A folder with complete terrain art was chosen.
    void terrain_art_accepted();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void lay_out();
    void lay_out_kinds(QGridLayout& grid);
    QLayout* make_arrows(SpriteKind kind, const QString& heading);
    ChoiceList* make_list(SpriteKind kind, const QString& heading);
    QPushButton* make_button(const QString& name, const QString& caption);
    QPushButton* make_captioned_button(const char* name, const char* design_caption);

    void show_descriptors();
    void show_sets(SpriteKind kind);
    void add_sets(SpriteKind kind);
    void take_set_out(SpriteKind kind);
    /// Takes the records of that set name out of the graphics file list.
    void remove_gfx_fichier(const std::string& set_name);
    void choose_folder(ChooserKind kind);

    ChoiceList& list(SpriteKind kind) const { return *lists_[kind]; }

    shell::Session& session_;
    FileList* files_;
    QString folder_; // of the files, native and absolute
    KindArray<ChoiceList*> lists_{};
};

} // namespace gfx
