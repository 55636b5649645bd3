#include "base/captions.h"
#include "editor/combined_selection.h"
#include "editor/panneau.h"
#include "shell/coloriage.h"
#include "shell/mdi_form1.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace shell {

void MDIForm1::build_colours() {
    coloriage_ = new Coloriage(session_, *this);
    auto* fields = new QActionGroup(this);
    fields->addAction(action("colorer(0)"))->setChecked(true);
    for (const auto field : map::coloured_fields) {
        auto* item = fields->addAction(base::item_text(panel_->field_name(field)));
        item->setObjectName(QStringLiteral("colorer(%1)").arg(field.number));
        item->setCheckable(true);
        action("colorer")->menu()->addAction(item);
        connect(item, &QAction::triggered, this, [this, field] {
            panel_->write_typed_text();
            colour_by(field);
        });
    }
    connect(coloriage_, &Coloriage::changed, this, [this] {
        if (map_)
            map_->colour(coloriage_->colours());
    });
    connect(coloriage_, &Coloriage::ended, this,
            [this] { action("colorer(0)")->setChecked(true); });
    connect(coloriage_, &Coloriage::chosen, this, [this](const std::vector<int>& provinces) {
        select(editor::selection_text(provinces));
    });
}

void MDIForm1::colour_by(data::FieldNumber field) {
    coloriage_->colour_by(field, panel_->field_name(field));
    seen_map_window(); // a closed one is to show the colours, too
}

void MDIForm1::end_colours() {
    coloriage_->end();
}

} // namespace shell
