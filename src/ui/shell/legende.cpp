#include "shell/legende.h"

#include "base/captions.h"
#include "editor/coded_choices.h"
#include "shell/code_texts.h"
#include "shell/place_check.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace shell {

namespace {

constexpr int narrowest = 20; // characters
constexpr int text_column = 0;
constexpr int count_column = 1;

QIcon swatch(map::Pixel colour, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(QColor::fromRgb(colour));
    QPainter painter(&pixmap);
    painter.setPen(Qt::black);
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // Qt would tint it, and it would be another colour
    return icon;
}

} // namespace

Legende::Legende(const Session& session, QWidget* owner)
    : QDockWidget(owner), session_(session), list_(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("légende"));
    setFeatures(DockWidgetClosable);
    list_->setObjectName(QStringLiteral("légende_liste"));
    list_->setColumnCount(2);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setHeaderHidden(true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(text_column, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(count_column, QHeaderView::ResizeToContents);
    list_->setMinimumWidth(fontMetrics().averageCharWidth() * narrowest);
    list_->setToolTip(base::own_text(session.language, Text::legend_tip));
    setWidget(list_);
    const auto choose = [this](QTreeWidgetItem* item) {
        emit chosen(
            classes_.at(static_cast<std::size_t>(list_->indexOfTopLevelItem(item))).provinces);
    };
    connect(list_, &QTreeWidget::itemClicked, this, choose);
    connect(list_, &QTreeWidget::itemActivated, this, choose);
}

void Legende::show_classes(const editor::Field& field, const QString& name,
                           std::span<const map::ColourClass> classes) {
    if (list_->accessibleName() != name)
        list_->clear();
    setWindowTitle(name);
    list_->setAccessibleName(name);
    const auto before = std::exchange(classes_, {classes.begin(), classes.end()});
    const int current = list_->indexOfTopLevelItem(list_->currentItem());
    const int swatch_size = fontMetrics().ascent();
    int row = 0;
    for (const auto& colour_class : classes_) {
        auto* item = list_->topLevelItem(row++);
        if (item == nullptr)
            item = new QTreeWidgetItem(list_);
        item->setText(text_column, base::caption_text(text_of(field, colour_class)));
        item->setText(count_column, QString::number(colour_class.provinces.size()));
        item->setIcon(text_column, swatch(colour_class.colour, swatch_size));
        item->setTextAlignment(count_column, Qt::AlignRight | Qt::AlignVCenter);
    }
    while (list_->topLevelItemCount() > row)
        delete list_->takeTopLevelItem(list_->topLevelItemCount() - 1);
    if (current >= 0)
        make_current(before[static_cast<std::size_t>(current)]);
}

/// The class may stand in another row than before, or nowhere; the list stays where it is.
void Legende::make_current(const map::ColourClass& before) {
    const auto found = std::find_if(classes_.begin(), classes_.end(), [&](const auto& now) {
        return now.kind == before.kind && now.value == before.value;
    });
    const int scrolled = list_->verticalScrollBar()->value();
    list_->setCurrentItem(list_->topLevelItem(static_cast<int>(found - classes_.begin())));
    list_->verticalScrollBar()->setValue(scrolled);
}

std::string Legende::text_of(const editor::Field& field,
                             const map::ColourClass& colour_class) const {
    const auto& language = session_.language;
    switch (colour_class.kind) {
    case map::ColourClass::Kind::code:
        return shown_code(field, colour_class.value);
    case map::ColourClass::Kind::number:
        return colour_class.value;
    case map::ColourClass::Kind::range:
        if (colour_class.value == colour_class.highest)
            return colour_class.value;
        return language.text(Text::legend_range, {colour_class.value, colour_class.highest});
    case map::ColourClass::Kind::none:
        return language.text(Text::legend_none);
    case map::ColourClass::Kind::sea:
        return shown_code(editor::fields[data::field_number(data::column::terrain)],
                          sea_code(language));
    }
    return {};
}

/// Returns the text that the panel shows for the code; for a code that it does not know, the code.
std::string Legende::shown_code(const editor::Field& field, const std::string& code) const {
    const auto& language = session_.language;
    if (field.display == editor::Display::box || field.display == editor::Display::coast)
        return language.text(editor::is_checked(field, code) ? Text::legend_yes : Text::legend_no);
    return std::string(text_of_code(code_texts(language, field), code));
}

void Legende::closeEvent(QCloseEvent* event) {
    QDockWidget::closeEvent(event);
    emit closed();
}

} // namespace shell
