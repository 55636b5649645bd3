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
#include <span>

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

/// Returns the names of the block's controls.
std::span<const std::string_view> names(const Block& block) {
    const auto end = std::find(block.controls.begin(), block.controls.end(), std::string_view());
    return {block.controls.begin(), end};
}

/// Builds the blocks of one tab into its frame.
class TabBuilder {
  public:
    TabBuilder(const shell::LanguageTexts& language, Controls& controls, QWidget* frame)
        : language_(language), controls_(controls), frame_(frame) {}

    void add(const Block& block, QGridLayout& grid) const {
        const auto add_row = [&](QLayout* row) {
            grid.addLayout(row, block.row, block.column, 1, block.column_span);
        };
        const auto add_widget = [&](QWidget* widget) {
            grid.addWidget(widget, block.row, block.column, 1, block.column_span);
        };
        switch (block.kind) {
        case BlockKind::field:
            return add_row(field(block));
        case BlockKind::numeric:
            return add_row(numeric(block));
        case BlockKind::list:
            return add_row(list(block));
        case BlockKind::positions:
            return add_row(positions(block));
        case BlockKind::group:
            return add_widget(buttons<OptionButton>(block));
        case BlockKind::boxes:
            return add_widget(buttons<PressBox>(block));
        case BlockKind::box:
            return add_widget(box(block));
        }
    }

  private:
    QString caption(const Block& block) const {
        return base::frame_caption(language_, block.caption_key, block.title);
    }

    /// A row with the block's caption at its start, still without controls.
    QHBoxLayout* captioned_row(const Block& block) const {
        auto* row = new QHBoxLayout;
        auto* label = new QLabel(frame_);
        label->setTextFormat(Qt::PlainText);
        label->setText(caption(block));
        label->setObjectName(object_name(block.caption_key));
        label->setProperty(aligned_with, "label");
        row->addWidget(label);
        return row;
    }

    /// Adds a control to the row; the caption's letter leads to the first one.
    static void add_to_row(QHBoxLayout& row, QWidget* control) {
        if (row.count() == 1)
            static_cast<QLabel*>(row.itemAt(0)->widget())->setBuddy(control);
        row.addWidget(control);
    }

    /// Returns a new control of the block, under the name and captioned for a screen reader.
    template <typename Control>
    Control* made(const Block& block, std::string_view name) const {
        auto* control = new Control(frame_);
        control->setAccessibleName(member_name(block, name));
        controls_.add(from_utf8(name), control);
        return control;
    }

    /// Returns what the caption calls the block's control of that name. Where the caption names as
    /// many in parentheses as there are, it is one of these; else they are counted.
    QString member_name(const Block& block, std::string_view name) const {
        const QString all = base::without_marks(caption(block));
        const auto members = names(block);
        if (members.size() == 1 || block.kind == BlockKind::numeric)
            return all;
        const auto place = std::find(members.begin(), members.end(), name) - members.begin();
        const auto opening = all.lastIndexOf('(');
        const auto closing = all.lastIndexOf(')');
        const QStringList words = all.mid(opening + 1, closing - opening - 1).split(',');
        if (opening >= 0 && words.size() == static_cast<qsizetype>(members.size()))
            return all.left(opening) + words[place].trimmed();
        return QStringLiteral("%1 %2").arg(all).arg(place + 1);
    }

    QLayout* field(const Block& block) const {
        auto* row = captioned_row(block);
        for (const auto name : names(block))
            add_to_row(*row, made<EntryField>(block, name));
        if (!block.unit.empty())
            row->addWidget(new QLabel(from_utf8(block.unit), frame_));
        return row;
    }

    QLayout* numeric(const Block& block) const {
        auto* row = captioned_row(block);
        auto* field = made<EntryField>(block, block.controls[0]);
        field->setFixedWidth(short_field_width);
        add_to_row(*row, field);
        auto* slider = made<QSlider>(block, block.controls[1]);
        slider->setOrientation(Qt::Horizontal);
        slider->setRange(0, slider_end);
        slider->setPageStep(2);
        row->addWidget(slider);
        return row;
    }

    QLayout* list(const Block& block) const {
        auto* row = captioned_row(block);
        auto* list = made<QComboBox>(block, block.controls[0]);
        list->setFocusPolicy(Qt::StrongFocus);
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        add_to_row(*row, list);
        row->setStretch(1, 1);
        return row;
    }

    QLayout* positions(const Block& block) const {
        auto* row = captioned_row(block);
        for (const auto name : names(block)) {
            QLabel* value = name.starts_with("dessin_c") ? made<VariantLabel>(block, name)
                                                         : made<QLabel>(block, name);
            value->setTextFormat(Qt::PlainText);
            value->setFrameStyle(QFrame::Panel | QFrame::Sunken);
            value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            value->setMinimumWidth(position_width);
            value->setMinimumHeight(frame_->fontMetrics().height() + row_spacing);
            row->addWidget(value);
        }
        row->addStretch();
        return row;
    }

    /// A titled frame with one button for each caption of the block.
    template <typename Button>
    QWidget* buttons(const Block& block) const {
        auto* box = new QGroupBox(caption(block), frame_);
        box->setAccessibleName(base::without_marks(caption(block)));
        box->setObjectName(object_name(block.caption_key));
        auto* grid = new QGridLayout(box);
        grid->setContentsMargins(8, 4, 4, 4);
        grid->setVerticalSpacing(2);
        for (int column = 0; column < block.options_in_row; ++column)
            grid->setColumnStretch(column, 1);
        const auto add_to_grid = [&](QWidget* widget, int n) {
            widget->setProperty(aligned_with, block.options_in_row);
            grid->addWidget(widget, n / block.options_in_row, n % block.options_in_row);
        };
        int count = 0;
        for (; !block.captions.at(static_cast<std::size_t>(count)).empty(); ++count) {
            auto* button =
                new Button(from_utf8(block.captions.at(static_cast<std::size_t>(count))), box);
            controls_.add(QStringLiteral("%1(%2)").arg(from_utf8(block.controls[0])).arg(count),
                          button);
            add_to_grid(button, count);
        }
        for (; count < block.options_in_row; ++count)
            add_to_grid(new QWidget(box), count); // an empty column would lose its width
        return box;
    }

    QWidget* box(const Block& block) const {
        auto* box = new PressBox(from_utf8(block.title), frame_);
        controls_.add(from_utf8(block.controls[0]), box);
        return box;
    }

    const shell::LanguageTexts& language_;
    Controls& controls_;
    QWidget* frame_;
};

} // namespace

QWidget* build_tab(const Tab& tab, const shell::LanguageTexts& language, Controls& controls,
                   QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(from_utf8(tab.frame));
    auto* grid = new QGridLayout(frame);
    grid->setVerticalSpacing(row_spacing);
    const TabBuilder builder(language, controls, frame);
    for (const auto& block : tab.blocks)
        builder.add(block, *grid);
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
        if (!widget->property(aligned_with).isValid())
            continue;
        widget->setMinimumWidth(widths[widget->property(aligned_with).toString()]);
        widget->parentWidget()->updateGeometry(); // a box keeps the size that it had before
    }
}

} // namespace editor
