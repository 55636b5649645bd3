#include "base/messages.h"
#include "data/run_time_error.h"
#include "editor/panneau.h"
#include "shell/form_controle.h"
#include "shell/form_guide.h"
#include "shell/form_modifications.h"
#include "shell/form_recherche.h"
#include "shell/map_check.h"
#include "shell/mdi_form1.h"
#include "shell/value_check.h"

#include <QScreen>

#include <algorithm>
#include <utility>

namespace shell {

namespace {

/// Makes the dialog that one works beside, unless it is there already.
template <class Form, class Make>
void make_beside(QPointer<Form>& form, Make make) {
    if (form)
        return;
    form = make();
    form->setAttribute(Qt::WA_DeleteOnClose);
}

void bring_to_front(QWidget& form) {
    form.show();
    form.raise();
    form.activateWindow();
}

/// Opens a new dialog in the frame's lower right corner, as far as the screen reaches: it shows
/// provinces in the middle of the map.
void bring_beside_map(QWidget& form, const QWidget& frame) {
    if (!form.isVisible()) {
        const QRect screen = frame.screen()->availableGeometry();
        QRect place({}, form.size() + frame.frameGeometry().size() - frame.size());
        place.moveBottomRight((frame.frameGeometry() & screen).bottomRight());
        form.move(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
    }
    bring_to_front(form);
}

} // namespace

void MDIForm1::modifications() {
    make_beside(modifications_, [this] {
        auto* form = new Form_modifications(session_, *panel_, this);
        connect(form, &Form_modifications::province_chosen, this,
                [this](int province) { select(std::to_string(province)); });
        connect(form, &Form_modifications::about_to_write, panel_,
                &editor::Panneau::write_typed_text);
        connect(form, &Form_modifications::written, this, &MDIForm1::table_changed);
        return form;
    });
    modifications_->refresh();
    bring_beside_map(*modifications_, *this);
}

void MDIForm1::trouver() {
    const auto field = panel_->focused_field(); // before the dialog takes the focus
    make_beside(recherche_, [this] {
        auto* form = new Form_recherche(session_, *panel_, this);
        connect(form, &Form_recherche::selection_wanted, this, &MDIForm1::select);
        return form;
    });
    bring_beside_map(*recherche_, *this);
    if (field)
        recherche_->begin_with(editor::fields[*field]);
    else
        recherche_->begin();
}

void MDIForm1::verifier() {
    make_beside(controle_, [this] {
        auto* form = new Form_controle(
            session_, [this] { return problems(); }, this);
        connect(form, &Form_controle::province_chosen, this,
                [this](int province) { select(std::to_string(province)); });
        return form;
    });
    controle_->refresh();
    bring_beside_map(*controle_, *this);
}

void MDIForm1::guide() {
    const QString file = guide_file(session_.language);
    if (file.isEmpty()) {
        base::show_message(session_, this, session_.language.text(Text::guide_missing));
        return;
    }
    make_beside(guide_, [&] { return new Form_guide(session_.language, file, this); });
    bring_to_front(*guide_);
}

std::vector<Problem> MDIForm1::problems() const {
    std::vector<Problem> found = file_problems_;
    const auto add = [&found](std::vector<Problem> more) {
        found.insert(found.end(), std::make_move_iterator(more.begin()),
                     std::make_move_iterator(more.end()));
    };
    add(check_values(session_.provinces, session_.language, {}));
    try {
        if (map_)
            add(check_on_map(session_, session_.maps, map_->id_map(), map_->places(), {}));
    } catch (const data::RunTimeError& error) {
        found.push_back(
            {.what = Text::problem_no_id_map, .detail = session_.language.text(error.place())});
    }
    return found;
}

} // namespace shell
