#include "shell/coloriage.h"

#include "shell/code_texts.h"
#include "shell/legende.h"
#include "shell/place_check.h"

#include <QMainWindow>

namespace shell {

namespace {

std::vector<std::string> codes_of(const editor::Field& field, const LanguageTexts& language) {
    if (field.display == editor::Display::box)
        return {"1", "0"};
    if (field.display == editor::Display::coast)
        return {"coastal", "inland"};
    std::vector<std::string> codes;
    for (const auto& entry : code_texts(language, field))
        codes.push_back(entry.code);
    return codes;
}

} // namespace

Coloriage::Coloriage(const Session& session, QMainWindow& frame)
    : QObject(&frame), session_(session), legend_(new Legende(session, &frame)) {
    frame.addDockWidget(Qt::LeftDockWidgetArea, legend_);
    legend_->hide();
    connect(legend_, &Legende::chosen, this, &Coloriage::chosen);
    connect(legend_, &Legende::closed, this, &Coloriage::end);
}

void Coloriage::colour_by(data::FieldNumber field, const QString& name) {
    field_ = &editor::fields[field];
    name_ = name;
    work_out();
    legend_->show();
}

void Coloriage::end() {
    if (field_ == nullptr)
        return;
    field_ = nullptr;
    colours_.reset();
    legend_->hide();
    emit changed();
    emit ended();
}

void Coloriage::look() {
    if (field_ != nullptr && version_ != session_.provinces.version())
        work_out();
}

void Coloriage::work_out() {
    version_ = session_.provinces.version();
    colours_ = std::make_shared<map::FieldColours>(session_.provinces, *field_,
                                                   codes_of(*field_, session_.language),
                                                   sea_code(session_.language));
    legend_->show_classes(*field_, name_, colours_->classes());
    emit changed();
}

} // namespace shell
