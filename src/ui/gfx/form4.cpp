#include "gfx/form4.h"

#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "data/text.h"
#include "gfx/file_list.h"
#include "gfx/folder_list.h"
#include "gfx/terrain_art.h"
#include "shell/session.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <array>

namespace gfx {

namespace {

/// What the chooser needs to know of a kind, in the order of the kinds.
struct Location {
    std::string_view name; // as the configuration file calls it
    std::string shell::Configuration::*path;
    std::string_view pattern;
    bool is_folder;
};

constexpr std::array<Location, 5> locations = {{
    {"GFX", &shell::Configuration::graphics_folder, "*.spr", true},
    {"GFX2", &shell::Configuration::terrain_art_folder, "*.bmp", true},
    {"CSV", &shell::Configuration::province_file_path, "*.csv", false},
    {"CSV2", &shell::Configuration::province_save_path, "*.csv", false},
    {"BMP", &shell::Configuration::map_bitmap_path, "*.bmp", false},
}};

constexpr std::string_view province_file_extension = ".csv";
constexpr QSize initial_size(640, 420);

const Location& location_of(ChooserKind kind) {
    return locations.at(static_cast<std::size_t>(kind));
}

/// Returns the drives that can be opened, as "c:".
QStringList drives() {
#ifdef Q_OS_WIN
    QStringList names;
    for (const auto& drive : QDir::drives()) {
        if (drive.exists())
            names += drive.path().left(2).toLower();
    }
    return names;
#else
    return {QStringLiteral("c:")};
#endif
}

/// Returns the path with a drive and "\" as its separator, which configuration files written by
/// hand may lack.
std::string with_drive(const std::string& path) {
    if (path.empty())
        return path;
    std::string stored = base::stored_path(base::to_qstring(path));
    std::replace(stored.begin(), stored.end(), '/', '\\');
    return stored;
}

} // namespace

Form4::Form4(shell::Session& session, QWidget* owner)
    : QDialog(owner),
      session_(session),
      drives_(new QComboBox(this)),
      folders_(new FolderList(this)),
      files_(new FileList(this)),
      name_(new QLineEdit(this)),
      confirm_(new QPushButton(QStringLiteral("OK"), this)),
      cancel_(new QPushButton(QStringLiteral("Cancel"), this)) {
    setObjectName(QStringLiteral("Form4"));
    drives_->setObjectName(QStringLiteral("Drive1"));
    folders_->setObjectName(QStringLiteral("Dir1"));
    files_->setObjectName(QStringLiteral("File1"));
    name_->setObjectName(QStringLiteral("Text1"));
    confirm_->setObjectName(QStringLiteral("Command1"));
    cancel_->setObjectName(QStringLiteral("Command2"));
    lay_out();

    connect(drives_, &QComboBox::activated, this, &Form4::change_drive);
    connect(folders_, &FolderList::opened, this, &Form4::show_files);
    connect(files_, &QListWidget::itemSelectionChanged, this, &Form4::take_selected_name);
    connect(files_, &QListWidget::itemClicked, this, &Form4::take_selected_name);
    connect(files_, &QListWidget::itemDoubleClicked, this, &Form4::confirm);
    connect(confirm_, &QPushButton::clicked, this, &Form4::confirm);
    connect(cancel_, &QPushButton::clicked, this, &Form4::reject);
}

int Form4::exec() {
    activate();
    return QDialog::exec();
}

void Form4::reject() {
    session_.cancelled_flag = 1;
    QDialog::reject();
}

void Form4::lay_out() {
    const QIcon drive_icon = style()->standardIcon(QStyle::SP_DriveHDIcon);
    for (const auto& drive : drives())
        drives_->addItem(drive_icon, drive);
    confirm_->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(confirm_);
    buttons->addWidget(cancel_);
    auto* grid = new QGridLayout(this);
    grid->addWidget(drives_, 0, 0);
    grid->addWidget(folders_, 1, 0);
    grid->addWidget(files_, 0, 1, 2, 1);
    grid->addWidget(name_, 2, 0, 1, 2);
    grid->addLayout(buttons, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    resize(initial_size);
}

void Form4::activate() {
    setWindowTitle(QApplication::applicationDisplayName());
    for (QPushButton* button : {confirm_, cancel_}) {
        const auto caption =
            session_.language.caption("Form4." + base::to_bytes(button->objectName()));
        if (caption)
            button->setText(base::to_qstring(*caption));
    }
    session_.cancelled_flag = 0;

    const ChooserKind kind = session_.chooser_kind;
    const std::string stored = with_drive(path());
    show_drive_of(stored);
    name_->setVisible(kind == ChooserKind::CSV2);
    if (location_of(kind).is_folder) {
        folders_->open(stored);
        folders_->setFocus();
        return;
    }
    path() = base::folder_of(stored);
    folders_->open(path().empty() ? base::to_bytes(drives_->currentText()) : path());
    if (kind == ChooserKind::CSV2) {
        path() = base::in_folder(folders_->folder(), base::to_bytes(name_->text()));
        name_->setFocus();
    } else {
        path() = base::in_folder(folders_->folder(), files_->file_name());
        files_->setFocus();
    }
}

void Form4::show_drive_of(std::string_view path) {
    const int index = drives_->findText(base::to_qstring(path.substr(0, 1)), Qt::MatchStartsWith);
    if (path.empty() || index < 0)
        throw data::RunTimeError(data::ErrorNumber::path_not_found,
                                 "the location " +
                                     std::string(location_of(session_.chooser_kind).name) + ", \"" +
                                     std::string(path) + "\": a path on a drive was expected");
    drives_->setCurrentIndex(index);
}

void Form4::change_drive() {
    const std::string drive = base::to_bytes(drives_->currentText());
    if (!data::starts_with_ignoring_case(folders_->folder(), drive))
        folders_->open(drive);
}

void Form4::show_files() {
    files_->show_files(folders_->native_folder(),
                       base::to_qstring(location_of(session_.chooser_kind).pattern));
}

void Form4::take_selected_name() {
    for (const auto* item : files_->selectedItems())
        name_->setText(item->text());
}

void Form4::confirm() {
    switch (session_.chooser_kind) {
    case ChooserKind::GFX:
        path() = folders_->folder();
        break;
    case ChooserKind::GFX2:
        confirm_terrain_art();
        break;
    case ChooserKind::CSV:
    case ChooserKind::BMP:
        if (!confirm_file())
            return;
        break;
    case ChooserKind::CSV2:
        if (!confirm_name_to_save())
            return;
        break;
    }
    accept();
}

bool Form4::confirm_file() {
    const std::string name = files_->file_name();
    path() = base::in_folder(folders_->folder(), name);
    if (name.empty())
        report_missing_name();
    return !name.empty();
}

bool Form4::confirm_name_to_save() {
    std::string name = base::to_bytes(name_->text());
    if (name.empty()) {
        report_missing_name();
        return false;
    }
    if (data::find_ignoring_case(name, province_file_extension) == std::string::npos)
        name += province_file_extension;
    name_->setText(base::to_qstring(name));
    path() = base::in_folder(folders_->folder(), name);
    return true;
}

void Form4::confirm_terrain_art() {
    auto& flag = session_.configuration.terrain_art_flag;
    if (is_complete_terrain_art(files_->names())) {
        path() = folders_->folder();
        flag = 1;
        return;
    }
    base::show_message(session_, this,
                       session_.language.message(data::Message::terrain_art_incomplete));
    flag = 0;
    activate();
}

void Form4::report_missing_name() {
    base::show_message(session_, this, session_.language.message(data::Message::name_missing));
}

std::string& Form4::path() const {
    return session_.configuration.*location_of(session_.chooser_kind).path;
}

} // namespace gfx
