#include "shell/form_guide.h"

#include "base/captions.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>
#include <QWindow>

#include <algorithm>

namespace shell {

namespace {

constexpr QSize initial_size(1080, 700);
constexpr int headings_width = 260; // pixels
constexpr int widest_picture = 740; // pixels
constexpr int text_margin = 16;     // pixels
constexpr int deepest_heading = 3;
constexpr QSize room_for_the_frame(40, 120); // a dialog comes up higher than its title bar needs

/// Shows pictures in the width of the text.
class Page : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override {
        QVariant resource = QTextBrowser::loadResource(type, name);
        QImage picture;
        if (type == QTextDocument::ImageResource && picture.loadFromData(resource.toByteArray()) &&
            picture.width() > widest_picture)
            return picture.scaledToWidth(widest_picture, Qt::SmoothTransformation);
        return resource;
    }
};

} // namespace

QString guide_file(const LanguageTexts& language) {
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/docs/");
    const QString locale = base::own_text(language, Text::locale);
    for (const auto& name :
         {QStringLiteral("guide.%1.md").arg(locale), QStringLiteral("guide.md")}) {
        if (QFileInfo(folder + name).isFile())
            return folder + name;
    }
    return {};
}

Form_guide::Form_guide(const LanguageTexts& language, const QString& file, QWidget* owner)
    : QDialog(owner, Qt::Window), headings_(new QListWidget(this)), text_(new Page(this)) {
    setObjectName(QStringLiteral("Form_guide"));
    setWindowTitle(base::own_text(language, Text::guide_caption));
    headings_->setObjectName(QStringLiteral("sommaire"));
    headings_->setAccessibleName(base::own_text(language, Text::guide_headings));
    headings_->setFixedWidth(headings_width);
    headings_->setWordWrap(true);
    text_->setObjectName(QStringLiteral("texte"));
    text_->setAccessibleName(windowTitle());
    text_->setOpenExternalLinks(true);
    text_->setSource(QUrl::fromLocalFile(file));
    text_->document()->setDocumentMargin(text_margin);
    list_headings();
    connect(headings_, &QListWidget::currentRowChanged, this, &Form_guide::show_heading);
    connect(headings_, &QListWidget::itemClicked, this, // the current one, too
            [this] { show_heading(headings_->currentRow()); });

    auto* row = new QHBoxLayout(this);
    row->addWidget(headings_);
    row->addWidget(text_, 1);
    text_->setFocus();
    resize(initial_size.boundedTo(screen()->availableSize() - room_for_the_frame));

    // A window that belongs to the frame would always lie above it.
    setAttribute(Qt::WA_QuitOnClose, false);
    winId();
    windowHandle()->setTransientParent(nullptr);
}

void Form_guide::list_headings() {
    for (auto block = text_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > deepest_heading)
            continue;
        constexpr int indent = 3; // blanks for each level
        const QString blanks(indent * std::max(level - 2, 0), ' ');
        auto* item = new QListWidgetItem(blanks + block.text(), headings_);
        item->setData(Qt::UserRole, block.blockNumber());
        QFont font = item->font();
        font.setBold(level < deepest_heading);
        item->setFont(font);
    }
}

void Form_guide::show_heading(int row) {
    const auto block =
        text_->document()->findBlockByNumber(headings_->item(row)->data(Qt::UserRole).toInt());
    const auto top = text_->document()->documentLayout()->blockBoundingRect(block).top();
    text_->verticalScrollBar()->setValue(static_cast<int>(top) - text_margin);
}

} // namespace shell
