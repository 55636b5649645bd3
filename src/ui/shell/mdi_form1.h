#pragma once

#include "base/watched_file.h"
#include "data/province_file.h"
#include "data/run_time_error.h"
#include "editor/selection_history.h"
#include "editor/typed_text.h"
#include "gfx/sprite_kind.h"
#include "map/form1.h"
#include "map/mode.h"
#include "map/zoom_level.h"
#include "shell/assignment.h"
#include "shell/problem.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "shell/start_up.h"

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;

namespace editor {
class Panneau;
}

namespace shell {

class Coloriage;
class Form_controle;
class Form_guide;
class Form_modifications;
class Form_recherche;
class Etat;
class Notice;
class RecoveryCopies;
struct DroppedFiles;

/// The main frame: menus, the workspace of the map window, the panel and the status bar. Its
/// closing is the program's shutdown.
class MDIForm1 : public QMainWindow {
    Q_OBJECT

  public:
    /// Builds the frame for a session that was started up, which told what run this is.
    MDIForm1(Session& session, RecoveryCopies& copies, Run run);

    // The commands of the menus.
    void ouvrir_cartes();
    void ouvrir_csv();
    void gfx();
    void enregister();
    /// Saves again where this run saved since it last read a file or opened a copy.
    void reenregistrer();
    void recuperer();
    void quitter();
    void show_map(map::ShownMap shown);
    void zoom_plus();
    void zoom_moins();
    void zoom_1();
    void zoom_tout();
    void montrer();
    void enter_mode(map::Mode mode);
    /// In a position mode: shows the next province that lacks the position.
    void suivante();
    /// Previews the set of a kind's item, counted from 1.
    void preview(gfx::SpriteKind kind, int item);
    void toggle_drawings();
    /// Colours the map by one of the fields that it can be coloured by.
    void colour_by(data::FieldNumber field);
    void end_colours();
    /// Takes the language of the item, counted from 0, for the next start; one that could not be
    /// read then is refused.
    void choose_language(int item);
    void trouver();
    void verifier();
    void modifications();
    void selection_precedente();
    void selection_suivante();
    void guide();
    void propos();

    /// Shows the frame where and as the last run left it, and tells of recovery copies that are new
    /// since then.
    void show_as_left();

    /// Shows the map so large, where there is one.
    void zoom_to(map::ZoomLevel level);

    /// Opens a page of the panel, counted from 0.
    void show_page(int page);

    // What the commands do once their dialogs are confirmed.
    /// Reads the province file with the stored path, and remembers it where config.txt can.
    data::ReadReport open_province_file(const std::string& path);
    void open_maps();
    /// Selects what the text names, as if it had been typed and entered.
    void select(const std::string& text);
    /// Writes the values into the selected provinces.
    void assign(const std::vector<Assignment>& assignments);

    /// Writes a text that was typed and not yet left, as far as it may stand, without a word.
    void keep_typed_text();

    /// Returns the texts that are typed into fields which were not left yet.
    std::vector<editor::TypedText> typed_texts() const;

    /// Shows what happened in the status bar for a while.
    void tell(const QString& notice);

    /// Looks after every event whether the state and the colours still hold.
    void look();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build_menus();
    void fill_language_menu();
    void build_workspace();
    void build_invitation();
    /// Shows what to do first as long as the workspace is empty and nothing was read.
    void show_invitation();
    void build_status_bar();
    void build_colours();
    void set_up_items(Run run);

    /// Makes the items of each kind in the graphics menu one exclusive choice.
    void group_previews();
    /// Sets up the graphics menu and enables what the loaded graphics allow.
    void options();
    /// Brings the menu and the map up to other graphics, or another choice among them.
    void show_graphics();

    /// Returns a menu or an item by its name in the menus' table. Throws std::out_of_range for a
    /// name that the table does not have.
    QAction* action(std::string_view name) const;
    void focus_selection_text();
    /// Whether the map's view moves to a selection of which nothing is in view.
    enum class View { follows, stays };

    /// Selects what the field names. An error that the caller knows better is shown instead of the
    /// one that an identifier above 2018 leads to.
    void apply_selection(View view = View::follows,
                         const std::optional<data::RunTimeError>& known_error = {});
    /// Takes the present selection into the history; a text that names it all shows it there.
    void remember_selection(const std::string& text);
    void select_clicked(int identifier, bool add, const data::Phrase& place);
    void show_status_text(int number);
    void check_mode();
    void check_map(map::ShownMap shown);
    void enable_map_items(bool enabled);
    void enable_zoom_items(map::ZoomLevel level);
    /// Enables the items that need a selection or a position mode, and maps.
    void enable_place_items();

    void tell_of_new_copies();
    void fill_recent_menus();
    void open_recent_file(const std::string& path);
    void open_recent_maps(const map::Maps& maps);
    /// Shows the error of a file that cannot be opened, and returns whether it can.
    bool can_be_read(const std::string& path);

    /// Opens the map files dialog with these values in its fields.
    void ask_for_maps(const map::Maps& proposed);
    void open_dropped_maps(const DroppedFiles& files);

    /// Asks whether the values of a file may take the place of the present ones.
    bool may_replace_values();
    void open_after_question(const std::string& path);
    void save_to(const std::string& path);
    /// Keeps what is unsaved before something else is read over it; false when that failed.
    bool keep_unsaved();
    void open_copy(const std::string& path);
    void table_changed();
    /// Shows what changed in the files while another program was used.
    void follow_files();
    std::vector<Problem> problems() const;

    /// Returns the map window, made anew when it was closed; none without maps.
    map::Form1* map_window();
    /// Returns the same, not minimised any more.
    map::Form1* seen_map_window();
    void make_map_window();
    void fit_map_window();
    void zoom_by(int steps);
    QString name_of(int province) const;
    void show_pointed(int province, const QPointF& position);
    /// Tells the text, or why the ID map could not be read where that is the reason.
    void tell_none_found(map::Form1& map, Text text);

    Session& session_;
    RecoveryCopies& copies_;
    Settings settings_;
    std::string saved_to_;               // stored path; empty before the first save
    base::WatchedFile watched_;          // the province file
    std::vector<Problem> file_problems_; // of the file that was read, until a save replaces it
    QPointer<Form_controle> controle_;
    QPointer<Form_modifications> modifications_;
    QPointer<Form_recherche> recherche_;
    editor::SelectionHistory history_;
    QPointer<Form_guide> guide_;
    std::map<std::string_view, QAction*> actions_; // by their names in the menus' table
    QStringList languages_;                        // file names without ".lng", in the menu's order
    editor::Panneau* panel_ = nullptr;
    QMdiArea* workspace_ = nullptr;
    QLabel* invitation_ = nullptr;
    QPointer<QMdiSubWindow> map_frame_;
    QPointer<map::Form1> map_;
    QRect fitted_; // where the map window was put last; its frame's place in the workspace
    QLabel* mode_text_ = nullptr;
    Etat* etat_ = nullptr;
    Coloriage* coloriage_ = nullptr;
    QLabel* pointed_name_ = nullptr;
    Notice* notice_ = nullptr;
    QLabel* pointer_text_ = nullptr;
};

} // namespace shell
