#include "shell/form_recherche.h"

#include "base/captions.h"
#include "base/qt_text.h"
#include "editor/coded_choices.h"
#include "editor/panneau.h"
#include "shell/typed_choice.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>

#include <algorithm>
#include <array>

namespace shell {

namespace {

using editor::Combination;

constexpr std::array columns = {Text::column_province, Text::column_name, Text::column_value};

/// The comparisons in the order of their enumerators.
constexpr std::array comparisons = {Text::comparison_contains, Text::comparison_equals,
                                    Text::comparison_differs,  Text::comparison_is_empty,
                                    Text::comparison_less,     Text::comparison_greater};

struct ResultsButton {
    const char* name;
    Text caption;
    Text tip;
    Combination combination;
};

constexpr std::array<ResultsButton, 4> results_buttons = {{
    {"select_all", Text::button_select_all, Text::select_all_tip, Combination::replace},
    {"add", Text::button_add, Text::add_tip, Combination::add},
    {"remove", Text::button_remove, Text::remove_tip, Combination::remove},
    {"keep", Text::button_keep, Text::keep_tip, Combination::keep},
}};

/// The keys that move in the list while one types.
constexpr std::array walking_keys = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};

/// Gives the control a tool tip of several lines, and the same words for who does not see it.
void explain(QWidget& control, const QString& words) {
    control.setToolTip(QStringLiteral("<p>%1</p>").arg(words.toHtmlEscaped()));
    control.setAccessibleDescription(words);
}

QString with_header(const QString& name, const QString& header) {
    if (name.isEmpty() || header.isEmpty())
        return name + header;
    const bool is_same = name.compare(header, Qt::CaseInsensitive) == 0;
    return is_same ? name : QStringLiteral("%1 (%2)").arg(name, header);
}

QString shown_header(data::FileColumn column) {
    return base::to_qstring(data::header(column)).trimmed();
}

QString caption(const SearchTarget& target, const LanguageTexts& language,
                const editor::Panneau& panel) {
    using data::column::treaty_portugal;
    using data::column::treaty_spain;
    switch (target.kind) {
    case SearchTarget::Kind::name_or_city:
        return base::own_text(language, Text::recherche_name_or_city);
    case SearchTarget::Kind::treaty:
        return with_header(panel.field_name(data::field_number(treaty_spain)),
                           shown_header(treaty_spain) + ", " + shown_header(treaty_portugal));
    case SearchTarget::Kind::column:
        break;
    }
    const bool is_shown_as_it_is = editor::fields[target.field].display != editor::Display::treaty;
    return with_header(is_shown_as_it_is ? panel.field_name(target.field) : QString(),
                       shown_header(data::file_column(data::table_column(target.field))));
}

/// Returns the values as cells: as numbers, which sort by their size, when all are such.
std::vector<QVariant> value_cells(const std::vector<FoundProvince>& found) {
    std::vector<QVariant> texts;
    std::vector<QVariant> numbers;
    for (const auto& each : found) {
        const QString text = base::to_qstring(each.value);
        texts.emplace_back(text);
        const int number = text.toInt();
        if (text.isEmpty())
            numbers.emplace_back();
        else if (QString::number(number) == text)
            numbers.emplace_back(number);
    }
    return numbers.size() == texts.size() ? numbers : texts;
}

} // namespace

Form_recherche::Form_recherche(const Session& session, const editor::Panneau& panel, QWidget* owner)
    : TableForm({"Form_recherche", "résultats", Text::recherche_caption, columns}, session, owner),
      targets_(search_targets()),
      target_(new TypedChoice(this)),
      comparison_(new QComboBox(this)),
      text_(new QLineEdit(this)) {
    build_entries(panel);
    build_buttons();
    connect(this, &TableForm::activated, this, [this](std::size_t row) {
        emit selection_wanted(std::to_string(found_.at(row).province));
    });
    connect(this, &TableForm::chosen_changed, this, &Form_recherche::show_count);
    search();
}

void Form_recherche::build_entries(const editor::Panneau& panel) {
    const auto& language = session().language;
    target_->setObjectName(QStringLiteral("field"));
    for (const auto& target : targets_)
        target_->addItem(caption(target, language, panel));
    comparison_->setObjectName(QStringLiteral("comparison"));
    for (const Text comparison : comparisons)
        comparison_->addItem(base::own_text(language, comparison));
    text_->setObjectName(QStringLiteral("text"));

    auto* grid = new QGridLayout;
    const auto add = [&](QWidget* control, Text words, Text tip, int row, int column, int span) {
        auto* label = new QLabel(base::own_text(language, words), this);
        label->setBuddy(control);
        control->setAccessibleName(base::without_marks(label->text()));
        explain(*control, base::own_text(language, tip));
        control->installEventFilter(this);
        grid->addWidget(label, row, column);
        grid->addWidget(control, row, column + 1, 1, span);
    };
    add(target_, Text::recherche_field, Text::recherche_field_tip, 0, 0, 3);
    add(comparison_, Text::recherche_comparison, Text::recherche_comparison_tip, 1, 0, 1);
    add(text_, Text::recherche_text, Text::recherche_text_tip, 1, 2, 1);
    grid->setColumnStretch(3, 1);
    add_above(grid);

    connect(target_, &QComboBox::currentIndexChanged, this, &Form_recherche::search);
    connect(comparison_, &QComboBox::currentIndexChanged, this, &Form_recherche::search);
    connect(text_, &QLineEdit::textChanged, this, &Form_recherche::search);
    setTabOrder(target_, comparison_);
    setTabOrder(comparison_, text_);
    setTabOrder(text_, list());
}

void Form_recherche::build_buttons() {
    const auto& language = session().language;
    QWidget* last = list();
    const auto add = [&](const char* name, Text words, Text tip) {
        auto* button = add_button(name, words);
        explain(*button, base::own_text(language, tip));
        setTabOrder(last, button);
        last = button;
        return button;
    };
    for (const auto& each : results_buttons) {
        auto* button = add(each.name, each.caption, each.tip);
        buttons_for_results_.push_back(button);
        connect(button, &QPushButton::clicked, this,
                [this, combination = each.combination] { combine(combination); });
    }
    auto* invert = add("invert", Text::button_invert, Text::invert_tip);
    connect(invert, &QPushButton::clicked, this, [this] {
        emit selection_wanted(
            editor::selection_text(editor::inverted(session().selection.provinces())));
    });
    setTabOrder(last, findChild<QWidget*>(QStringLiteral("close")));
}

void Form_recherche::begin() {
    if (text_->isEnabled()) {
        text_->setFocus(Qt::ShortcutFocusReason);
        text_->selectAll();
    } else {
        comparison_->setFocus(Qt::ShortcutFocusReason);
    }
}

void Form_recherche::begin_with(const editor::Field& field) {
    const auto value = editor::shown_value(session().provinces, session().selection, field);
    const SearchTarget target = target_of(field);
    const bool is_common = value.state == editor::MergedValue::State::common;
    {
        const QSignalBlocker no_target(target_);
        const QSignalBlocker no_comparison(comparison_);
        const QSignalBlocker no_text(text_);
        const auto at = std::find(targets_.begin(), targets_.end(), target) - targets_.begin();
        target_->choose(static_cast<int>(at));
        comparison_->setCurrentIndex(
            static_cast<int>(is_common ? Comparison::equals : Comparison::contains));
        text_->setText(is_common
                           ? base::to_qstring(text_to_find(session().language, target, value.text))
                           : QString());
    }
    search();
    begin();
}

void Form_recherche::search() {
    refresh();
    make_current(0);
}

void Form_recherche::refresh() {
    const auto& provinces = session().provinces;
    const Search query = {targets_.at(static_cast<std::size_t>(target_->currentIndex())),
                          static_cast<Comparison>(comparison_->currentIndex()),
                          base::to_bytes(text_->text())};
    found_ = find_provinces(provinces, session().language, query);
    shown_version_ = provinces.version();
    std::vector<QVariant> values = value_cells(found_);
    std::vector<Row> rows;
    rows.reserve(found_.size());
    for (std::size_t row = 0; row < found_.size(); ++row) {
        const int province = found_[row].province;
        const auto& name = provinces.cell(province, data::table_column(data::column::name));
        rows.push_back({province, base::to_qstring(name), std::move(values[row])});
    }
    show_rows(std::move(rows), {});
    text_->setEnabled(query.comparison != Comparison::is_empty);
    for (auto* button : buttons_for_results_)
        button->setEnabled(!found_.empty());
    show_count();
}

void Form_recherche::show_count() {
    const auto& language = session().language;
    const QString count = QString::number(found_.size());
    const auto chosen_rows = chosen().size();
    if (found_.empty())
        set_count(base::own_text(language, Text::recherche_none));
    else if (chosen_rows > 1)
        set_count(
            base::own_text(language, Text::recherche_chosen, count, QString::number(chosen_rows)));
    else if (found_.size() == 1)
        set_count(base::own_text(language, Text::recherche_one));
    else
        set_count(base::own_text(language, Text::recherche_count, count));
}

std::vector<int> Form_recherche::provinces_meant() const {
    std::vector<int> provinces;
    const auto rows = chosen();
    if (rows.size() > 1) {
        for (const std::size_t row : rows)
            provinces.push_back(found_.at(row).province);
        std::sort(provinces.begin(), provinces.end()); // they come as the list is sorted
    } else {
        for (const auto& each : found_)
            provinces.push_back(each.province);
    }
    return provinces;
}

void Form_recherche::combine(editor::Combination combination) {
    emit selection_wanted(editor::selection_text(
        editor::combined(session().selection.provinces(), provinces_meant(), combination)));
}

void Form_recherche::changeEvent(QEvent* event) {
    TableForm::changeEvent(event);
    const bool is_activation = event->type() == QEvent::ActivationChange && isActiveWindow();
    if (is_activation && session().provinces.version() != shown_version_)
        refresh();
}

bool Form_recherche::is_for_list(const QObject* pressed_in, const QKeyEvent& key) const {
    const bool is_enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (pressed_in == comparison_)
        return is_enter; // the other keys walk its own list
    return pressed_in == text_ && (is_enter || std::find(walking_keys.begin(), walking_keys.end(),
                                                         key.key()) != walking_keys.end());
}

bool Form_recherche::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && is_for_list(watched, *static_cast<QKeyEvent*>(event)))
        return QCoreApplication::sendEvent(list(), event);
    return TableForm::eventFilter(watched, event);
}

} // namespace shell
