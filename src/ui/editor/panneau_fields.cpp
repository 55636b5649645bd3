#include "base/captions.h"
#include "base/qt_text.h"
#include "data/numbers.h"
#include "editor/coded_choices.h"
#include "editor/differing_tip.h"
#include "editor/entry_field.h"
#include "editor/mark.h"
#include "editor/numeric_entry.h"
#include "editor/panneau.h"
#include "editor/press_box.h"
#include "editor/variant_label.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QSlider>

namespace editor {

using base::from_utf8;
using base::to_bytes;
using base::to_qstring;
using namespace std::chrono_literals;

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

void Panneau::adopt(const Field& field, QWidget& control) {
    auto& bound = bound_[field.number];
    if (bound.name.isEmpty())
        bound.name = control.accessibleName();
    bound.controls.push_back(&control);
    bound.marks.push_back(
        new Mark(control, base::own_text(session_.language, shell::Text::differing_placeholder),
                 [this, &field] { return differing_tip(session_, field); }));
}

Panneau::Show Panneau::bind_text(const Field& field) {
    auto& text = controls_.get<EntryField>(from_utf8(field.control));
    const auto store = [this, &text, &field] {
        const std::string entered = text.bytes();
        text.show_stored(entered);
        write(entered, field, text.lost_characters());
    };
    connect(&text, &EntryField::entered, this, store);
    connect(&text, &EntryField::left, this, store);
    entries_.push_back({field.number, &text, store, store, [&text] { return text.bytes(); }});
    adopt(field, text);
    return [&text](const MergedValue& value) { text.show_bytes(value.text); };
}

Panneau::Show Panneau::bind_slider(const Field& field) {
    const NumericField& numeric = numeric_field(field.number);
    auto& text = controls_.get<EntryField>(from_utf8(field.control));
    auto& slider = controls_.get<QSlider>(from_utf8(numeric.slider));
    for (QWidget* control : {static_cast<QWidget*>(&text), static_cast<QWidget*>(&slider)})
        control->setToolTip(base::own_text(session_.language, shell::Text::range_tip,
                                           QStringLiteral("0"),
                                           to_qstring(data::to_text(numeric.highest))));
    auto* entry =
        new NumericEntry(numeric, text, slider, [this, &field, &text](const std::string& value) {
            write(value, field, text.lost_characters());
        });
    connect(entry, &NumericEntry::refused, this, [this, &numeric] { warn(numeric); });
    connect(entry, &NumericEntry::refused_when_left, this, [this, &numeric, &text] {
        const bool is_in_panel = isAncestorOf(QApplication::focusWidget());
        warn_after_leaving({numeric, text, is_in_panel, selected_provinces()}, 0ms);
    });
    entries_.push_back({field.number, &text, [entry] { entry->enter(); },
                        [entry] { entry->store(); }, [entry] { return entry->stored_text(); }});
    adopt(field, text);
    adopt(field, slider);
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
            tell(field, choose(session_.provinces, session_.selection, field, code), code);
            show_field(field);
        });
    }
    group.make_reachable();
    adopt(field, group.frame());
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
    adopt(field, list);
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
    box.setAccessibleName(base::without_marks(box.text()));
    connect(&box, &QAbstractButton::pressed, this, [this, &box, &field] {
        const auto value = value_after_press(field, box.isChecked());
        tell(field, changement(session_.provinces, session_.selection, value, field.number), value);
        show_field(field);
    });
    adopt(field, box);
    return
        [&box, &field](const MergedValue& value) { box.setChecked(is_checked(field, value.text)); };
}

Panneau::Show Panneau::bind_label(const Field& field) {
    auto& label = controls_.get<QLabel>(from_utf8(field.control));
    if (field.display == Display::variant) {
        label.setToolTip(base::own_text(session_.language, shell::Text::variant_tip));
        connect(&controls_.get<VariantLabel>(from_utf8(field.control)), &VariantLabel::clicked,
                this, [this, &label, &field] { write(to_bytes(label.text()), field); });
    }
    adopt(field, label);
    return [&label, name = label.accessibleName()](const MergedValue& value) {
        label.setText(to_qstring(value.text));
        // A label that has a name of its own is read by that alone.
        label.setAccessibleName(value.text.empty() ? name : name + ": " + label.text());
    };
}

} // namespace editor
