#include "base/captions.h"
#include "base/qt_text.h"
#include "base/shown_text.h"
#include "base/stored_path.h"
#include "data/numbers.h"
#include "editor/panneau.h"
#include "map/map_view.h"
#include "map/position_entry.h"
#include "shell/coloriage.h"
#include "shell/etat.h"
#include "shell/mdi_form1.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include <array>
#include <memory>

namespace shell {

namespace {

struct MapItem {
    std::string_view name;
    map::ShownMap shown;
    std::string map::Maps::*path;
};

constexpr std::array<MapItem, 3> map_items = {{
    {"carte_1", map::ShownMap::map_1, &map::Maps::map_1_path},
    {"carte_2", map::ShownMap::map_2, &map::Maps::map_2_path},
    {"carte_id", map::ShownMap::id_map, &map::Maps::id_map_path},
}};

} // namespace

void MDIForm1::enable_map_items(bool enabled) {
    for (const auto* name : {"carte_1", "carte_id", "zoom_plus", "zoom_moins", "zoom_1",
                             "zoom_tout", "normal", "saisie"})
        action(name)->setEnabled(enabled);
    for (auto* item : action("colorer")->menu()->actions())
        item->setEnabled(enabled);
    enable_place_items();
}

void MDIForm1::enable_place_items() {
    const bool has_maps = action("normal")->isEnabled();
    action("montrer")->setEnabled(has_maps && !session_.selection.provinces().empty());
    action("suivante")->setEnabled(has_maps && session_.mode != map::Mode::normal);
}

void MDIForm1::enable_zoom_items(map::ZoomLevel level) {
    action("zoom_plus")->setEnabled(!level.is_largest());
    action("zoom_moins")->setEnabled(!level.is_smallest());
}

void MDIForm1::open_maps() {
    make_map_window();
    enable_map_items(true);
    settings_.add_maps(session_.maps);
    show_invitation();
    show_status_text(map::info(map::Mode::normal).status_text);
}

map::Form1* MDIForm1::map_window() {
    if (!map_ && !session_.maps.id_map_path.empty())
        make_map_window();
    return map_;
}

map::Form1* MDIForm1::seen_map_window() {
    auto* map = map_window();
    if (map)
        map_frame_->setWindowState(map_frame_->windowState() & ~Qt::WindowMinimized);
    return map;
}

void MDIForm1::make_map_window() {
    delete map_frame_;
    action("carte_2")->setEnabled(false);
    auto map = std::make_unique<map::Form1>(session_);
    map_ = map.get();
    map_frame_ = workspace_->addSubWindow(map.release());
    map_frame_->setAttribute(Qt::WA_DeleteOnClose);
    map_frame_->setFocusPolicy(Qt::ClickFocus); // Tab is to reach the map, not its frame as well
    connect(map_, &map::Form1::pointed, this, &MDIForm1::show_pointed);
    connect(map_, &map::Form1::province_clicked, this, &MDIForm1::select_clicked);
    connect(map_, &map::Form1::tabbed, this, [this](bool forward) { focusNextPrevChild(forward); });
    connect(map_, &map::Form1::problem, this, &MDIForm1::tell);
    connect(&map_->view(), &map::MapView::level_changed, this, &MDIForm1::enable_zoom_items);
    enable_zoom_items({});
    map_->colour(coloriage_->colours());
    etat_->count_on_map(map_->places());
    action("carte_2")->setEnabled(map_->has_map_2());
    check_map(map::ShownMap::map_1);
    map_frame_->show();
    fit_map_window();
}

void MDIForm1::show_pointed(int province, const QPointF& position) {
    pointer_text_->setText(QStringLiteral("id = %1").arg(province));
    QString coordinates;
    try {
        const auto x = map::stored_x(session_.maps, position.x());
        const auto y =
            map::stored_y(session_.maps, data::to_int16(position.y(), Text::place_press_y));
        coordinates = QStringLiteral("(%1, %2)").arg(base::to_qstring(x), base::to_qstring(y));
    } catch (const data::RunTimeError&) {
        // A click there would store nothing.
    }
    pointed_name_->setText(QStringLiteral("%1 %2").arg(name_of(province), coordinates).trimmed());
}

void MDIForm1::show_map(map::ShownMap shown) {
    auto* map = seen_map_window();
    if (!map)
        return;
    map->show_map(shown);
    check_map(shown);
}

void MDIForm1::zoom_plus() {
    zoom_by(1);
}

void MDIForm1::zoom_moins() {
    zoom_by(-1);
}

void MDIForm1::zoom_by(int steps) {
    if (auto* map = seen_map_window())
        map->view().set_level(map::ZoomLevel(map->view().level().power() + steps));
}

void MDIForm1::zoom_to(map::ZoomLevel level) {
    if (auto* map = seen_map_window())
        map->view().set_level(level);
}

void MDIForm1::zoom_1() {
    zoom_to({});
}

void MDIForm1::zoom_tout() {
    if (auto* map = seen_map_window())
        map->view().show_whole_map();
}

void MDIForm1::montrer() {
    auto* map = seen_map_window();
    if (map && !map->montrer())
        tell_none_found(*map, Text::notice_selection_not_on_map);
}

void MDIForm1::suivante() {
    auto* map = seen_map_window();
    if (!map)
        return;
    if (const auto province = map->suivante())
        tell(base::own_text(session_.language, Text::notice_next_lacking,
                            QString::number(*province), name_of(*province))
                 .trimmed());
    else
        tell_none_found(*map, Text::notice_none_lacks);
}

void MDIForm1::tell_none_found(map::Form1& map, Text text) {
    const auto& unread = map.places().problem();
    tell(unread ? base::message_text(session_.language.text(*unread))
                : base::own_text(session_.language, text));
}

QString MDIForm1::name_of(int province) const {
    if (province > data::last_province)
        return {};
    return base::caption_text(
        session_.provinces.cell(province, data::table_column(data::column::name)));
}

void MDIForm1::check_map(map::ShownMap shown) {
    for (const auto& item : map_items) {
        action(item.name)->setChecked(item.shown == shown);
        if (item.shown == shown)
            map_frame_->setWindowTitle(
                QFileInfo(base::native_path(session_.maps.*item.path)).fileName());
    }
}

void MDIForm1::fit_map_window() {
    if (!map_frame_ || map_frame_->isMaximized() || map_frame_->isMinimized())
        return;
    const auto room = workspace_->viewport()->size();
    fitted_ = {QPoint(0, 0), map_frame_->sizeHint().boundedTo(room)};
    map_frame_->setGeometry(fitted_);
}

bool MDIForm1::eventFilter(QObject* watched, QEvent* event) {
    const bool is_as_fitted = map_frame_ && map_frame_->geometry() == fitted_;
    if (event->type() == QEvent::Resize && watched == workspace_->viewport() && is_as_fitted)
        fit_map_window(); // where the user has put it elsewhere, it stays
    return QMainWindow::eventFilter(watched, event);
}

} // namespace shell
