#include "editor/panneau.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "editor/coded_choices.h"
#include "editor/entry_field.h"
#include "editor/mark.h"
#include "editor/tab_pages.h"
#include "editor/write_notice.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace editor {

namespace {

using base::from_utf8;
using base::to_bytes;
using base::to_qstring;
using namespace std::chrono_literals;

constexpr auto release_interval = 10ms;

} // namespace

Panneau::Panneau(shell::Session& session, QWidget* parent)
    : QWidget(parent), session_(session), selection_text_(new OneLineEdit(this)) {
    setObjectName(QStringLiteral("panneau"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* column = new QVBoxLayout(this);
    column->addWidget(build_selection_row());
    pages_ = new TabPages(session.language, controls_, this);
    column->addWidget(pages_);
    for (const Field& field : fields)
        bound_[field.number].show = bind(field);
    pages_->fit_to_captions();
    show_selection();
}

QSize Panneau::sizeHint() const {
    return {minimumSizeHint().width(), QWidget::sizeHint().height()};
}

int Panneau::page() const {
    return pages_->page();
}

void Panneau::show_page(int page) {
    pages_->show_page(page);
}

QWidget* Panneau::build_selection_row() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    selection_text_->setObjectName(QStringLiteral("selection_text"));
    layout->addWidget(selection_text_);
    auto* select = build_button("Command1", "Sélectionner", row);
    auto* clear = build_button("Command2", "Effacer", row);
    selection_text_->setAccessibleName(base::without_marks(select->text()));
    const QString tip = base::own_text(session_.language, shell::Text::selection_not_applied_tip);
    not_applied_ = new Mark(*selection_text_, tip, [tip] { return tip; });

    connect(selection_text_, &QLineEdit::textChanged, this,
            [this](const QString& text) { not_applied_->set_shown(text != applied_text_); });
    connect(selection_text_, &QLineEdit::returnPressed, this, &Panneau::selection_entered);
    connect(select, &QPushButton::clicked, this, &Panneau::selection_entered);
    connect(clear, &QPushButton::clicked, this, [this] {
        selection_text_->clear();
        emit selection_entered();
    });
    return row;
}

QPushButton* Panneau::build_button(std::string_view name, std::string_view design, QWidget* row) {
    auto* button = new QPushButton(base::frame_caption(session_.language, name, design), row);
    button->setObjectName(from_utf8(name));
    row->layout()->addWidget(button);
    return button;
}

std::string Panneau::selection_text() const {
    return to_bytes(selection_text_->text());
}

void Panneau::set_selection_text(const std::string& text) {
    selection_text_->setText(to_qstring(text));
}

void Panneau::selection_applied() {
    applied_text_ = selection_text_->text();
    not_applied_->set_shown(false);
}

void Panneau::focus_selection_text() {
    selection_text_->setFocus(Qt::ShortcutFocusReason);
    selection_text_->selectAll();
}

std::optional<data::FieldNumber> Panneau::focused_field() const {
    const QWidget* focus = QApplication::focusWidget();
    for (const Field& field : fields) {
        const auto& controls = bound_[field.number].controls;
        if (std::any_of(controls.begin(), controls.end(), [focus](const QWidget* control) {
                return control == focus || control->isAncestorOf(focus);
            }))
            return field.number;
    }
    return std::nullopt;
}

void Panneau::show_selection() {
    for (const Field& field : fields)
        show_field(field);
}

void Panneau::show_field(const Field& field) {
    const auto& bound = bound_[field.number];
    if (!bound.show)
        return;
    const MergedValue value = shown_value(session_.provinces, session_.selection, field);
    bound.show(value);
    show_marks(field, value.state);
}

void Panneau::show_marks(const Field& field, MergedValue::State state) {
    for (Mark* mark : bound_[field.number].marks)
        mark->set_shown(state == MergedValue::State::differing);
}

void Panneau::forget_shown() {
    for (const auto& entry : entries_)
        entry.field->forget_shown();
}

void Panneau::write_typed_text() {
    // The field may be without the focus: while another program is used, no control has it.
    for (const auto& entry : entries_) {
        if (entry.field->isModified())
            entry.store();
    }
}

void Panneau::keep_typed_text() {
    for (const auto& entry : entries_) {
        if (entry.field->isModified())
            entry.keep();
    }
}

std::vector<TypedText> Panneau::typed_texts() const {
    std::vector<TypedText> typed;
    for (const auto& entry : entries_) {
        if (!entry.field->isModified())
            continue;
        if (const auto text = entry.stored_text())
            typed.push_back({entry.number, *text});
    }
    return typed;
}

bool Panneau::anything_selected() const {
    return !session_.selection.provinces().empty();
}

std::vector<int> Panneau::selected_provinces() const {
    const auto provinces = session_.selection.provinces();
    return {provinces.begin(), provinces.end()};
}

void Panneau::write(const std::string& value, const Field& field, bool lost_characters) {
    tell(field, changement(session_.provinces, session_.selection, value, field.number), value,
         lost_characters);
    if (!anything_selected())
        show_field(field);
    else
        show_marks(field, merged_value(session_.provinces, session_.selection, field.number).state);
}

void Panneau::tell(const Field& field, int provinces, std::string_view value,
                   bool lost_characters) {
    const QString notice = write_notice(
        session_.language, {bound_[field.number].name, provinces, value, lost_characters});
    if (!notice.isEmpty())
        emit told(notice);
}

void Panneau::warn(const NumericField& numeric) {
    base::show_message(session_, window(), session_.language.message(numeric.message));
}

void Panneau::warn_after_leaving(const Refusal& refusal, std::chrono::milliseconds wait) {
    QTimer::singleShot(wait, this, [this, refusal] {
        if (QApplication::mouseButtons() != Qt::NoButton) {
            warn_after_leaving(refusal, release_interval);
            return;
        }
        warn(refusal.numeric);
        if (refusal.is_in_panel && refusal.selected == selected_provinces())
            pages_->return_to(refusal.field);
    });
}

} // namespace editor
