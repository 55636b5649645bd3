#include "editor/panneau.h"

#include "base/captions.h"
#include "base/qt_text.h"
#include "editor/coded_choices.h"
#include "editor/entry_field.h"
#include "editor/numeric_entry.h"
#include "editor/panel_builder.h"
#include "editor/press_box.h"
#include "editor/variant_label.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace editor {

namespace {

using base::from_utf8;
using base::to_bytes;
using base::to_qstring;

template <typename Control>
Control* control(const QWidget& panel, const QString& name) {
    auto* found = panel.findChild<Control*>(name);
    Q_ASSERT_X(found, "panel", qPrintable(name));
    return found;
}

template <typename Control>
Control* control(const QWidget& panel, const Field& field) {
    return control<Control>(panel, from_utf8(field.control));
}

} // namespace

Panneau::Panneau(shell::Session& session, QWidget* parent)
    : QWidget(parent), session_(session), selection_text_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("panneau"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(build_selection_row());
    build_tabs();
    for (const Field& field : fields)
        shows_[field.number] = bind(field);
    align(*this);
    show_selection();
    setFixedWidth(minimumSizeHint().width());
}

QWidget* Panneau::build_selection_row() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);

    selection_text_->setObjectName(QStringLiteral("selection_text"));
    selection_text_->setMaxLength(std::numeric_limits<int>::max());
    layout->addWidget(selection_text_);
    const auto add_button = [&](std::string_view name, std::string_view design) {
        auto* button = new QPushButton(base::frame_caption(session_.language, name, design), row);
        button->setObjectName(from_utf8(name));
        layout->addWidget(button);
        return button;
    };
    auto* select = add_button("Command1", "Sélectionner");
    auto* clear = add_button("Command2", "Effacer");

    connect(selection_text_, &QLineEdit::returnPressed, this, &Panneau::selection_entered);
    connect(select, &QPushButton::clicked, this, &Panneau::selection_entered);
    connect(clear, &QPushButton::clicked, this, [this] {
        selection_text_->clear();
        emit selection_entered();
    });
    return row;
}

void Panneau::build_tabs() {
    auto* strip = new QTabBar(this);
    strip->setObjectName(QStringLiteral("TabStrip1"));
    strip->setExpanding(false);
    auto* frames = new QStackedWidget(this);
    for (const auto& tab : tabs) {
        strip->addTab(base::frame_caption(session_.language, tab.caption_key, tab.title));
        frames->addWidget(build_tab(tab, session_.language, frames));
    }
    // The focus leaves the old tab's field before that hides, and enters none of the new one's.
    connect(strip, &QTabBar::currentChanged, this, [strip, frames](int index) {
        strip->setFocus(Qt::OtherFocusReason);
        frames->setCurrentIndex(index);
    });
    layout()->addWidget(strip);
    layout()->addWidget(frames);
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
    const auto values = shown_values(session_.provinces, session_.selection);
    for (const Field& field : fields) {
        if (const Show& show = shows_[field.number])
            show(values[field.number]);
    }
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

bool Panneau::eventFilter(QObject* watched, QEvent* event) {
    // Turning the wheel over the panel must not change the value that happens to lie under it.
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool Panneau::anything_selected() const {
    return !session_.selection.provinces().empty();
}

void Panneau::write(const std::string& value, data::FieldNumber field) {
    changement(session_.provinces, session_.selection, value, field);
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
    auto* text = control<EntryField>(*this, field);
    const auto store = [this, text, number = field.number] {
        write(text->bytes(), number);
        text->setModified(false);
    };
    connect(text, &EntryField::entered, this, store);
    connect(text, &EntryField::left, this, store);
    entries_.push_back({text, store, store});
    return [text](const std::string& value) { text->show_bytes(value); };
}

Panneau::Show Panneau::bind_slider(const Field& field) {
    const auto* numeric =
        std::find_if(numeric_fields.begin(), numeric_fields.end(),
                     [&](const NumericField& each) { return each.number == field.number; });
    auto* text = control<EntryField>(*this, field);
    auto* slider = control<QSlider>(*this, from_utf8(numeric->slider));
    slider->installEventFilter(this);
    auto* entry = new NumericEntry(
        *numeric, *text, *slider, session_,
        [this, number = field.number](const std::string& value) { write(value, number); });
    entries_.push_back({text, [entry] { entry->enter(); }, [entry] { entry->store(); }});
    return [entry](const std::string& value) { entry->show(value); };
}

Panneau::Show Panneau::bind_group(const Field& field) {
    auto& group = *groups_.emplace_back(std::make_unique<OptionGroup>());
    const auto entries = session_.language.list(field.list_prefix);
    for (std::size_t n = 0; n < shell::capacity(field.list_prefix); ++n) {
        auto* option = control<OptionButton>(
            *this, QStringLiteral("%1(%2)").arg(from_utf8(field.control)).arg(n));
        if (n < entries.size())
            option->setText(base::caption_text(entries[n].text));
        group.add(option, n < entries.size() ? entries[n].code : std::string(),
                  [this, &field, &group](const std::string& code) {
                      choose(session_.provinces, session_.selection, field, code);
                      if (!anything_selected())
                          group.show({});
                  });
    }
    return [&group](const std::string& value) { group.show(value); };
}

Panneau::Show Panneau::bind_list(const Field& field) {
    auto* list = control<QComboBox>(*this, field);
    list->installEventFilter(this);
    const auto entries = session_.language.list(field.list_prefix);
    const auto items = shell::capacity(field.list_prefix);
    for (std::size_t n = 0; n < items; ++n) {
        const std::string text = n < entries.size() ? entries[n].text : std::string();
        list->addItem(base::caption_text(text), to_qstring(text));
    }
    connect(list, &QComboBox::activated, this, [this, list, entries, items, &field] {
        write(shell::code_of_text(entries, items, to_bytes(list->currentData().toString())),
              field.number);
        if (!anything_selected())
            list->setCurrentIndex(-1);
    });
    return [list, entries](const std::string& value) {
        list->setCurrentIndex(shell::index_of_code(entries, value));
    };
}

Panneau::Show Panneau::bind_box(const Field& field) {
    auto* box = control<PressBox>(*this, field);
    const auto entries = session_.language.list(field.list_prefix);
    if (field.list_entry < entries.size())
        box->setText(base::caption_text(entries[field.list_entry].text));
    connect(box, &QAbstractButton::pressed, this, [this, box, &field] {
        const bool was_on = box->isChecked();
        box->setChecked(!was_on && anything_selected());
        write(std::string(value_after_press(field, was_on)), field.number);
    });
    return [box, &field](const std::string& value) { box->setChecked(is_checked(field, value)); };
}

Panneau::Show Panneau::bind_label(const Field& field) {
    auto* label = control<QLabel>(*this, field);
    if (auto* variant = qobject_cast<VariantLabel*>(label)) {
        connect(variant, &VariantLabel::clicked, this, [this, variant, number = field.number] {
            write(to_bytes(variant->text()), number);
        });
    }
    return [label](const std::string& value) { label->setText(to_qstring(value)); };
}

} // namespace editor
