#include "base/messages.h"
#include "editor/panneau.h"
#include "shell/form_controle.h"
#include "shell/form_guide.h"
#include "shell/form_modifications.h"
#include "shell/form_recherche.h"
#include "shell/mdi_form1.h"
#include "shell/place_check.h"
#include "shell/value_check.h"

#include <utility>

namespace shell {

namespace {

/// Shows the dialog that one works beside, in front where it is there already.
template <class Form, class Make>
void show_beside(QPointer<Form>& form, Make make) {
    if (!form) {
        form = make();
        form->setAttribute(Qt::WA_DeleteOnClose);
    }
    form->show();
    form->raise();
    form->activateWindow();
}

} // namespace

void MDIForm1::modifications() {
    show_beside(modifications_, [this] {
        auto* form = new Form_modifications(session_, *panel_, this);
        connect(form, &Form_modifications::province_chosen, this,
                [this](int province) { select(std::to_string(province)); });
        connect(form, &Form_modifications::about_to_write, panel_,
                &editor::Panneau::write_typed_text);
        connect(form, &Form_modifications::written, this, &MDIForm1::table_changed);
        return form;
    });
    modifications_->refresh();
}

void MDIForm1::trouver() {
    const auto field = panel_->focused_field(); // before the dialog takes the focus
    show_beside(recherche_, [this] {
        auto* form = new Form_recherche(session_, *panel_, this);
        connect(form, &Form_recherche::selection_wanted, this, &MDIForm1::select);
        return form;
    });
    if (field)
        recherche_->begin_with(editor::fields[*field]);
    else
        recherche_->begin();
}

void MDIForm1::verifier() {
    show_beside(controle_, [this] {
        auto* form = new Form_controle(
            session_, [this] { return problems(); }, this);
        connect(form, &Form_controle::province_chosen, this,
                [this](int province) { select(std::to_string(province)); });
        return form;
    });
    controle_->refresh();
}

void MDIForm1::guide() {
    const QString file = guide_file(session_.language);
    if (file.isEmpty()) {
        base::show_message(session_, this, session_.language.text(Text::guide_missing));
        return;
    }
    show_beside(guide_, [&] { return new Form_guide(session_.language, file, this); });
}

std::vector<Problem> MDIForm1::problems() const {
    std::vector<Problem> found = file_problems_;
    const auto add = [&found](std::vector<Problem> more) {
        found.insert(found.end(), std::make_move_iterator(more.begin()),
                     std::make_move_iterator(more.end()));
    };
    add(check_values(session_.provinces, session_.language, {}));
    if (map_) {
        map::MapReader reader(map_->id_map());
        const QSize size = map_->id_map().size();
        add(check_places(session_.provinces, session_.language,
                         {size.width(), size.height(), session_.maps, map_->index(),
                          [&reader](int x, int y) {
                              return reader.province_at({x, y});
                          }},
                         {}));
    }
    return found;
}

} // namespace shell
