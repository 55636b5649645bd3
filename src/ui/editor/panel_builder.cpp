#include "editor/panel_builder.h"

#include "base/captions.h"
#include "base/qt_text.h"
#include "editor/entry_field.h"
#include "editor/option_group.h"
#include "editor/press_box.h"
#include "editor/variant_label.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QSlider>

#include <algorithm>

namespace editor {

namespace {

using base::from_utf8;

constexpr int row_spacing = 6;                // pixels
constexpr int short_field_width = 72;         // pixels
constexpr int position_width = 72;            // pixels
constexpr int slider_end = 20;                // both sliders run from 0
constexpr auto aligned_with = "aligned_with"; // property of widgets that become equally wide

/// Some caption keys hold a blank that belongs to the key only, not to the control's name.
QString object_name(std::string_view caption_key) {
    return from_utf8(caption_key).remove(QLatin1Char(' '));
}

QString caption(const Block& block, const shell::LanguageTexts& language) {
    return base::frame_caption(language, block.caption_key, block.title);
}

/// A row with the block's caption at its start, still without controls.
QHBoxLayout* captioned_row(const Block& block, const shell::LanguageTexts& language,
                           QWidget* frame) {
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(caption(block, language), frame);
    label->setObjectName(object_name(block.caption_key));
    label->setProperty(aligned_with, "label");
    row->addWidget(label);
    return row;
}

/// Calls `add` with each of the block's controls.
template <typename Add>
void for_each_control(const Block& block, Add add) {
    for (const auto name : block.controls) {
        if (!name.empty())
            add(from_utf8(name));
    }
}

QLayout* build_field(const Block& block, const shell::LanguageTexts& language, QWidget* frame) {
    auto* row = captioned_row(block, language, frame);
    for_each_control(block, [&](const QString& name) {
        auto* field = new EntryField(frame);
        field->setObjectName(name);
        row->addWidget(field);
    });
    if (!block.unit.empty())
        row->addWidget(new QLabel(from_utf8(block.unit), frame));
    return row;
}

QLayout* build_numeric(const Block& block, const shell::LanguageTexts& language, QWidget* frame) {
    auto* row = captioned_row(block, language, frame);
    auto* field = new EntryField(frame);
    field->setObjectName(from_utf8(block.controls[0]));
    field->setFixedWidth(short_field_width);
    row->addWidget(field);
    auto* slider = new QSlider(Qt::Horizontal, frame);
    slider->setObjectName(from_utf8(block.controls[1]));
    slider->setRange(0, slider_end);
    slider->setPageStep(2);
    row->addWidget(slider);
    return row;
}

QLayout* build_list(const Block& block, const shell::LanguageTexts& language, QWidget* frame) {
    auto* row = captioned_row(block, language, frame);
    auto* list = new QComboBox(frame);
    list->setObjectName(from_utf8(block.controls[0]));
    list->setFocusPolicy(Qt::StrongFocus);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    row->addWidget(list, 1);
    return row;
}

QLayout* build_positions(const Block& block, const shell::LanguageTexts& language, QWidget* frame) {
    auto* row = captioned_row(block, language, frame);
    for_each_control(block, [&](const QString& name) {
        auto* value = name.startsWith(QStringLiteral("dessin_c")) ? new VariantLabel(frame)
                                                                  : new QLabel(frame);
        value->setObjectName(name);
        value->setTextFormat(Qt::PlainText);
        value->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        value->setMinimumWidth(position_width);
        value->setMinimumHeight(frame->fontMetrics().height() + row_spacing);
        row->addWidget(value);
    });
    row->addStretch();
    return row;
}

/// A titled frame with one button for each caption of the block.
template <typename Button>
QWidget* build_buttons(const Block& block, const shell::LanguageTexts& language, QWidget* frame) {
    auto* box = new QGroupBox(caption(block, language), frame);
    box->setObjectName(object_name(block.caption_key));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(8, 4, 4, 4);
    grid->setVerticalSpacing(2);
    for (int column = 0; column < block.options_in_row; ++column)
        grid->setColumnStretch(column, 1);
    const auto place = [&](QWidget* widget, int n) {
        widget->setProperty(aligned_with, block.options_in_row);
        grid->addWidget(widget, n / block.options_in_row, n % block.options_in_row);
    };
    int count = 0;
    for (; !block.captions.at(static_cast<std::size_t>(count)).empty(); ++count) {
        auto* button =
            new Button(from_utf8(block.captions.at(static_cast<std::size_t>(count))), box);
        button->setObjectName(
            QStringLiteral("%1(%2)").arg(from_utf8(block.controls[0])).arg(count));
        place(button, count);
    }
    for (; count < block.options_in_row; ++count)
        place(new QWidget(box), count); // an empty column would lose its width
    return box;
}

QWidget* build_box(const Block& block, QWidget* frame) {
    auto* box = new PressBox(from_utf8(block.title), frame);
    box->setObjectName(from_utf8(block.controls[0]));
    return box;
}

void add_block(const Block& block, const shell::LanguageTexts& language, QWidget* frame,
               QGridLayout& grid) {
    const auto add_row = [&](QLayout* row) {
        grid.addLayout(row, block.row, block.column, 1, block.column_span);
    };
    const auto add_widget = [&](QWidget* widget) {
        grid.addWidget(widget, block.row, block.column, 1, block.column_span);
    };
    switch (block.kind) {
    case BlockKind::field:
        return add_row(build_field(block, language, frame));
    case BlockKind::numeric:
        return add_row(build_numeric(block, language, frame));
    case BlockKind::list:
        return add_row(build_list(block, language, frame));
    case BlockKind::positions:
        return add_row(build_positions(block, language, frame));
    case BlockKind::group:
        return add_widget(build_buttons<OptionButton>(block, language, frame));
    case BlockKind::boxes:
        return add_widget(build_buttons<PressBox>(block, language, frame));
    case BlockKind::box:
        return add_widget(build_box(block, frame));
    }
}

} // namespace

QWidget* build_tab(const Tab& tab, const shell::LanguageTexts& language, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(from_utf8(tab.frame));
    auto* grid = new QGridLayout(frame);
    grid->setVerticalSpacing(row_spacing);
    for (const auto& block : tab.blocks)
        add_block(block, language, frame, *grid);
    grid->setRowStretch(grid->rowCount(), 1);
    for (int column = 0; column < grid->columnCount(); ++column)
        grid->setColumnStretch(column, 1);
    return frame;
}

void align(QWidget& panel) {
    QHash<QString, int> widths;
    const auto widgets = panel.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->property(aligned_with).isValid())
            continue;
        int& width = widths[widget->property(aligned_with).toString()];
        width = std::max(width, widget->sizeHint().width());
    }
    for (QWidget* widget : widgets) {
        if (widget->property(aligned_with).isValid())
            widget->setMinimumWidth(widths[widget->property(aligned_with).toString()]);
    }
}

} // namespace editor
