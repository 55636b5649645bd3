#pragma once

#include "data/province_file.h"
#include "gfx/sprite_kind.h"
#include "map/form1.h"
#include "map/mode.h"
#include "shell/session.h"

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <string>
#include <string_view>

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;

namespace editor {
class Panneau;
}

namespace shell {

/// The main frame: menus, the workspace of the map window, the panel and the status bar. Its making
/// is the program's start-up, its closing the shutdown.
class MDIForm1 : public QMainWindow {
    Q_OBJECT

  public:
    /// Reads config.txt and the language file from the program's folder. Throws a run-time error
    /// with file and line for what cannot be read.
    explicit MDIForm1(Session& session);

    // The commands of the menus.
    void ouvrir_cartes();
    void ouvrir_csv();
    void gfx();
    void enregister();
    void quitter();
    void show_map(map::ShownMap shown);
    void enter_mode(map::Mode mode);
    /// Previews the set of a kind's item, counted from 1.
    void preview(gfx::SpriteKind kind, int item);
    void toggle_drawings();
    /// Takes the language of the item, counted from 0, for the next start; one that could not be
    /// read then is refused.
    void choose_language(int item);
    void propos();

    // What the commands do once their dialogs are confirmed.
    data::ReadReport open_province_file();
    void open_maps();
    /// Selects what the text names, as if it had been typed and entered.
    void select(const std::string& text);

    /// Writes a text that was typed and not yet left, as far as it may stand, without a word.
    void keep_typed_text();

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void start_up();
    void read_configuration_file();
    void read_language_file();
    /// Returns the texts of a language file in the program's folder. Throws what its reading
    /// throws, with the file in the place.
    LanguageTexts texts_of(const std::string& language_file) const;
    void build_menus();
    void fill_language_menu();
    void build_workspace();
    void build_status_bar();

    /// Sets up the graphics menu and enables what the loaded graphics allow.
    void options();
    /// Brings the menu and the map up to other graphics, or another choice among them.
    void show_graphics();

    QAction* action(std::string_view name) const;
    void apply_selection();
    void show_status_text(int number);
    void check_mode();
    void check_map(map::ShownMap shown);
    void enable_map_items(bool enabled);

    /// Returns the map window, made anew when it was closed; none without maps.
    map::Form1* map_window();
    void make_map_window();
    void fit_map_window();

    Session& session_;
    QStringList languages_; // file names without ".lng", in the menu's order
    editor::Panneau* panel_ = nullptr;
    QMdiArea* workspace_ = nullptr;
    QPointer<QMdiSubWindow> map_frame_;
    QPointer<map::Form1> map_;
    QRect fitted_; // where the map window was put last; its frame's place in the workspace
    QLabel* mode_text_ = nullptr;
    QLabel* pointer_text_ = nullptr;
    bool is_first_run_ = false;
};

} // namespace shell
