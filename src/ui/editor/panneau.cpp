#include "editor/panneau.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "editor/coded_choices.h"
#include "editor/entry_field.h"
#include "editor/numeric_entry.h"
#include "editor/press_box.h"
#include "editor/tab_pages.h"
#include "editor/variant_label.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

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
        shows_[field.number] = bind(field);
    pages_->fit_to_captions();
    show_selection();
}

QSize Panneau::sizeHint() const {
    return {minimumSizeHint().width(), QWidget::sizeHint().height()};
}

QWidget* Panneau::build_selection_row() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    selection_text_->setObjectName(QStringLiteral("selection_text"));
    layout->addWidget(selection_text_);
    auto* select = build_button("Command1", "Sélectionner", row);
    auto* clear = build_button("Command2", "Effacer", row);
    selection_text_->setAccessibleName(select->text());

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

void Panneau::focus_selection_text() {
    selection_text_->setFocus(Qt::ShortcutFocusReason);
    selection_text_->selectAll();
}

void Panneau::show_selection() {
    for (const Field& field : fields)
        show_field(field);
}

void Panneau::show_field(const Field& field) {
    if (const Show& show = shows_[field.number])
        show(shown_value(session_.provinces, session_.selection, field));
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

void Panneau::write(const std::string& value, const Field& field) {
    changement(session_.provinces, session_.selection, value, field.number);
    if (!anything_selected())
        show_field(field);
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

Panneau::Show Panneau::bind(const Field& field) {
    switch (field.display) {
    case Display::nowhere:
        return {};
    case Display::text:
        return bind_text(field);
    case Display::slider:
        return bind_slider(field);
    case Display::group:
    case Display::treaty:
        return bind_group(field);
    case Display::list:
        return bind_list(field);
    case Display::box:
    case Display::coast:
        return bind_box(field);
    case Display::position:
    case Display::variant:
        return bind_label(field);
    }
    return {};
}

Panneau::Show Panneau::bind_text(const Field& field) {
    auto& text = controls_.get<EntryField>(from_utf8(field.control));
    const auto store = [this, &text, &field] {
        const std::string entered = text.bytes();
        text.show_stored(entered);
        write(entered, field);
    };
    connect(&text, &EntryField::entered, this, store);
    connect(&text, &EntryField::left, this, store);
    entries_.push_back({field.number, &text, store, store, [&text] { return text.bytes(); }});
    return [&text](const MergedValue& value) { text.show_bytes(value.text); };
}

Panneau::Show Panneau::bind_slider(const Field& field) {
    const NumericField& numeric = numeric_field(field.number);
    auto& text = controls_.get<EntryField>(from_utf8(field.control));
    auto& slider = controls_.get<QSlider>(from_utf8(numeric.slider));
    auto* entry = new NumericEntry(
        numeric, text, slider, [this, &field](const std::string& value) { write(value, field); });
    connect(entry, &NumericEntry::refused, this, [this, &numeric] { warn(numeric); });
    connect(entry, &NumericEntry::refused_when_left, this, [this, &numeric, &text] {
        const bool is_in_panel = isAncestorOf(QApplication::focusWidget());
        warn_after_leaving({numeric, text, is_in_panel, selected_provinces()}, 0ms);
    });
    entries_.push_back({field.number, &text, [entry] { entry->enter(); },
                        [entry] { entry->store(); }, [entry] { return entry->stored_text(); }});
    return [entry](const MergedValue& value) { entry->show(value.text); };
}

Panneau::Show Panneau::bind_group(const Field& field) {
    auto& group = *groups_.emplace_back(std::make_unique<OptionGroup>());
    const auto entries = session_.language.list(field.list_prefix);
    for (std::size_t n = 0; n < shell::capacity(field.list_prefix); ++n) {
        auto& option = controls_.get<OptionButton>(
            QStringLiteral("%1(%2)").arg(from_utf8(field.control)).arg(n));
        if (n >= entries.size()) {
            group.add(option);
            continue;
        }
        option.setText(base::caption_text(entries[n].text));
        group.add(option, entries[n].code, [this, &field](const std::string& code) {
            choose(session_.provinces, session_.selection, field, code);
            show_field(field);
        });
    }
    return [&group](const MergedValue& value) { group.show(value.text); };
}

Panneau::Show Panneau::bind_list(const Field& field) {
    auto& list = controls_.get<QComboBox>(from_utf8(field.control));
    const auto entries = session_.language.list(field.list_prefix);
    const auto items = shell::capacity(field.list_prefix);
    for (std::size_t n = 0; n < items; ++n) {
        const std::string text = n < entries.size() ? entries[n].text : std::string();
        list.addItem(base::caption_text(text), to_qstring(text));
    }
    connect(&list, &QComboBox::activated, this, [this, &list, entries, items, &field] {
        write(shell::code_of_text(entries, items, to_bytes(list.currentData().toString())), field);
    });
    return [&list, entries](const MergedValue& value) {
        const bool is_common = value.state == MergedValue::State::common;
        list.setCurrentIndex(is_common ? shell::index_of_code(entries, value.text) : -1);
    };
}

Panneau::Show Panneau::bind_box(const Field& field) {
    auto& box = controls_.get<PressBox>(from_utf8(field.control));
    const auto entries = session_.language.list(field.list_prefix);
    if (field.list_entry < entries.size())
        box.setText(base::caption_text(entries[field.list_entry].text));
    connect(&box, &QAbstractButton::pressed, this, [this, &box, &field] {
        changement(session_.provinces, session_.selection,
                   value_after_press(field, box.isChecked()), field.number);
        show_field(field);
    });
    return
        [&box, &field](const MergedValue& value) { box.setChecked(is_checked(field, value.text)); };
}

Panneau::Show Panneau::bind_label(const Field& field) {
    auto& label = controls_.get<QLabel>(from_utf8(field.control));
    if (field.display == Display::variant) {
        connect(&controls_.get<VariantLabel>(from_utf8(field.control)), &VariantLabel::clicked,
                this, [this, &label, &field] { write(to_bytes(label.text()), field); });
    }
    return [&label](const MergedValue& value) { label.setText(to_qstring(value.text)); };
}

} // namespace editor
