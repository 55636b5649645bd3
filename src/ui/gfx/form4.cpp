#include "gfx/form4.h"

#include "base/captions.h"
#include "base/elided_label.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "data/text.h"
#include "gfx/file_list.h"
#include "gfx/folder_list.h"
#include "gfx/location.h"
#include "gfx/terrain_art.h"
#include "shell/session.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace gfx {

namespace {

constexpr QLatin1String province_file_extension(".csv");
constexpr QSize initial_size(640, 420);

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
      wanted_(new QLabel(this)),
      shown_(new base::ElidedLabel(this, Qt::ElideMiddle)),
      drives_(new QComboBox(this)),
      folders_(new FolderList(this)),
      files_(new FileList(this)),
      name_label_(
          new QLabel(base::own_text(session_.language, shell::Text::chooser_file_name), this)),
      name_(new QLineEdit(this)),
      confirm_(new QPushButton(QStringLiteral("OK"), this)),
      cancel_(new QPushButton(QStringLiteral("Cancel"), this)) {
    name_controls();
    lay_out();
    connect(drives_, &QComboBox::activated, this, &Form4::change_drive);
    connect(folders_, &FolderList::opened, this, &Form4::show_files);
    connect(folders_, &FolderList::entered, this, [this] {
        if (location().is_folder)
            confirm();
    });
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

void Form4::name_controls() {
    setObjectName(QStringLiteral("Form4"));
    wanted_->setObjectName(QStringLiteral("Label1"));
    shown_->setObjectName(QStringLiteral("Label2"));
    drives_->setObjectName(QStringLiteral("Drive1"));
    folders_->setObjectName(QStringLiteral("Dir1"));
    files_->setObjectName(QStringLiteral("File1"));
    name_label_->setObjectName(QStringLiteral("Label3"));
    name_->setObjectName(QStringLiteral("Text1"));
    confirm_->setObjectName(QStringLiteral("Command1"));
    cancel_->setObjectName(QStringLiteral("Command2"));

    drives_->setAccessibleName(base::own_text(session_.language, shell::Text::chooser_drive));
    drives_->setToolTip(base::own_text(session_.language, shell::Text::chooser_drive));
    folders_->setAccessibleName(base::own_text(session_.language, shell::Text::chooser_folders));
    folders_->setToolTip(base::own_text(session_.language, shell::Text::chooser_folders_tip));
    files_->setAccessibleName(base::own_text(session_.language, shell::Text::chooser_files));
    files_->setToolTip(base::own_text(session_.language, shell::Text::chooser_files));
    name_label_->setBuddy(name_);
    name_->setAccessibleName(base::without_marks(name_label_->text()));
    name_->setToolTip(base::own_text(session_.language, shell::Text::chooser_file_name_tip));
}

void Form4::lay_out() {
    const QIcon drive_icon = style()->standardIcon(QStyle::SP_DriveHDIcon);
    for (const auto& drive : drives())
        drives_->addItem(drive_icon, drive);
    QFont heading = wanted_->font();
    heading.setBold(true);
    wanted_->setFont(heading);
    confirm_->setDefault(true);

    auto* name = new QHBoxLayout;
    name->addWidget(name_label_);
    name->addWidget(name_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(confirm_);
    buttons->addWidget(cancel_);
    auto* grid = new QGridLayout(this);
    grid->addWidget(wanted_, 0, 0, 1, 2);
    grid->addWidget(shown_, 1, 0, 1, 2);
    grid->addWidget(drives_, 2, 0);
    grid->addWidget(folders_, 3, 0);
    grid->addWidget(files_, 2, 1, 2, 1);
    grid->addLayout(name, 4, 0, 1, 2);
    grid->addLayout(buttons, 5, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    resize(initial_size);
}

void Form4::apply_captions() {
    setWindowTitle(QApplication::applicationDisplayName());
    for (QPushButton* button : {confirm_, cancel_}) {
        const auto caption =
            session_.language.caption("Form4." + base::to_bytes(button->objectName()));
        if (caption)
            button->setText(base::caption_text(*caption));
    }
    const auto wanted = session_.language.caption(location().command);
    wanted_->setText(base::without_marks(wanted ? base::caption_text(*wanted)
                                                : base::from_utf8(location().wanted)));
}

void Form4::activate() {
    apply_captions();
    session_.cancelled_flag = 0;

    const bool saves = session_.chooser_kind == ChooserKind::CSV2;
    name_label_->setVisible(saves);
    name_->setVisible(saves);
    const std::string stored = with_drive(path());
    show_drive_of(stored);
    if (location().is_folder) {
        folders_->open(stored);
        folders_->setFocus();
        return;
    }
    const std::string folder = base::folder_of(stored);
    folders_->open(folder.empty() ? base::to_bytes(drives_->currentText()) : folder);
    if (base::is_storable_path(folders_->native_folder()))
        path() = base::in_folder(folders_->folder(),
                                 saves ? base::to_bytes(name_->text()) : files_->file_name());
    if (saves)
        name_->setFocus();
    else
        files_->setFocus();
}

void Form4::show_drive_of(std::string_view path) {
    const int index = drives_->findText(base::to_qstring(path.substr(0, 1)), Qt::MatchStartsWith);
    if (path.empty() || index < 0)
        throw data::RunTimeError(data::ErrorNumber::path_not_found,
                                 data::Phrase(data::Text::reason_no_drive))
            .within('"' + std::string(path) + '"')
            .within(data::Phrase(data::Text::place_location, location().name));
    drives_->setCurrentIndex(index);
}

void Form4::change_drive() {
    const std::string drive = base::to_bytes(drives_->currentText());
    if (!data::starts_with_ignoring_case(folders_->folder(), drive))
        folders_->open(drive);
}

void Form4::show_files() {
    const QString& folder = folders_->native_folder();
    const QString pattern = base::from_utf8(location().pattern);
    files_->show_files(folder, pattern);
    shown_->setText(QDir::toNativeSeparators(QDir(folder).filePath(pattern)));
}

void Form4::take_selected_name() {
    for (const auto* item : files_->selectedItems())
        name_->setText(item->text());
}

void Form4::confirm() {
    if (take_choice())
        accept();
}

bool Form4::take_choice() {
    switch (session_.chooser_kind) {
    case ChooserKind::GFX:
        return take_graphics_folder();
    case ChooserKind::GFX2:
        return take_terrain_art();
    case ChooserKind::CSV:
    case ChooserKind::BMP:
        return take_file();
    case ChooserKind::CSV2:
        return take_name_to_save();
    }
    return false;
}

bool Form4::take_graphics_folder() {
    if (!folders_->open_highlighted() || !can_take_open_folder())
        return false;
    path() = folders_->folder();
    return true;
}

bool Form4::take_terrain_art() {
    if (!folders_->open_highlighted() || !can_take_open_folder())
        return false;
    const bool is_complete = is_complete_terrain_art(files_->names());
    session_.configuration.terrain_art_flag = is_complete ? 1 : 0;
    if (is_complete) {
        path() = folders_->folder();
        emit terrain_art_accepted();
    } else {
        base::show_message(session_, this,
                           session_.language.message(data::Message::terrain_art_incomplete));
    }
    return true; // closes the chooser in both cases
}

bool Form4::take_file() {
    if (!folders_->is_still_there() || !can_take_open_folder())
        return false;
    const std::string name = files_->file_name();
    path() = base::in_folder(folders_->folder(), name);
    if (name.empty())
        report_missing_name();
    return !name.empty();
}

bool Form4::take_name_to_save() {
    QString name = name_->text().normalized(QString::NormalizationForm_C);
    if (name.isEmpty()) {
        report_missing_name();
        return false;
    }
    const bool is_full = base::is_full_path(name);
    if (!is_full && (!folders_->is_still_there() || !can_take_open_folder()))
        return false;
    if (is_full ? !base::is_storable_path(name) : !base::is_storable_text(name)) {
        base::show_unstorable(session_, this);
        return false;
    }
    if (!name.contains(province_file_extension, Qt::CaseInsensitive))
        name += province_file_extension;
    name_->setText(name);
    path() = is_full ? base::stored_path(name)
                     : base::in_folder(folders_->folder(), base::to_bytes(name));
    return true;
}

bool Form4::can_take_open_folder() {
    const bool can = base::is_storable_path(folders_->native_folder());
    if (!can)
        base::show_unstorable(session_, this);
    return can;
}

void Form4::report_missing_name() {
    base::show_message(session_, this, session_.language.message(data::Message::name_missing));
}

const Location& Form4::location() const {
    return locations[session_.chooser_kind];
}

std::string& Form4::path() const {
    return session_.configuration.*location().path;
}

} // namespace gfx
