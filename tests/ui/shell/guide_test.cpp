#include "data/columns.h"
#include "shell/form_guide.h"
#include "shell/menus.h"
#include "support/main_frame.h"

#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextTable>

namespace {

class Guide : public support::MainFrame {
  protected:
    void start_in(const std::string& language) {
        frame.reset();
        folder.write("config.txt", "\"LAN\",\"" + language + "\",0\r\n");
        start();
        press_key(Qt::Key_F1);
    }
    QWidget& window() const { return control<QWidget>("Form_guide"); }
    QTextBrowser& text() const { return control<QTextBrowser>("texte"); }
};

TEST_F(Guide, OpensInTheLanguageOfTheTextsBesideTheFrame) {
    for (const auto& [language, word] :
         {std::pair{"english.lng", "Your first hour"}, {"french.lng", "Votre première heure"}}) {
        start_in(language);
        ASSERT_TRUE(window().isVisible());
        EXPECT_FALSE(window().isModal());
        auto& headings = control<QListWidget>("sommaire");
        EXPECT_EQ(headings.item(1)->text(), QString::fromUtf8(word));
        QTest::mouseClick(headings.viewport(), Qt::LeftButton, {},
                          headings.visualItemRect(headings.item(5)).center());
        EXPECT_GT(text().verticalScrollBar()->value(), 0);
        const QRegularExpression pictures(QStringLiteral("\\]\\((pictures/[^)]*)\\)"));
        QFile file(shell::guide_file(session.language));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        auto found = pictures.globalMatch(QString::fromUtf8(file.readAll()));
        EXPECT_TRUE(found.hasNext());
        while (found.hasNext()) {
            const QString name = found.next().captured(1);
            const auto picture =
                text().loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
            EXPECT_GT(picture.width(), 600) << name.toStdString();
            EXPECT_LT(picture.width(), 800) << name.toStdString();
        }
        press_key(Qt::Key_F1);
        EXPECT_EQ(frame->findChildren<shell::Form_guide*>().size(), 1);
    }
}

/// Returns the texts of the column of the table's rows below the heading.
QStringList column_of(const QTextTable& table, int column) {
    QStringList texts;
    for (int row = 1; row < table.rows(); ++row)
        texts += table.cellAt(row, column).firstCursorPosition().block().text();
    return texts;
}

TEST_F(Guide, NamesEveryColumnAndEveryShortcut) {
    QStringList headers;
    for (const auto header : data::headers)
        headers += QString::fromUtf8(header.data(), header.size()).trimmed();
    for (const auto* language : {"english.lng", "french.lng"}) {
        start_in(language);
        QStringList columns;
        QString keys;
        for (auto* frame_of_text : text().document()->rootFrame()->childFrames()) {
            const auto* table = qobject_cast<QTextTable*>(frame_of_text);
            if (table != nullptr && table->rows() == data::file_columns + 1)
                columns = column_of(*table, 1);
            else if (table != nullptr)
                keys += column_of(*table, 0).join(", ") + ", ";
        }
        columns.replaceInStrings(QRegularExpression("^\\((empty|vide)\\)$"), QString());
        EXPECT_EQ(columns.join('|').toStdString(), headers.join('|').toStdString());
        for (const auto& item : shell::menu_items()) {
            for (QString key : base::from_utf8(item.shortcuts).split(QStringLiteral("; "))) {
                if (language[0] == 'f')
                    key.replace("Shift", "Maj")
                        .replace("Left", "Gauche")
                        .replace("Right", "Droite");
                EXPECT_TRUE(keys.contains(key)) << language << ' ' << key.toStdString();
            }
        }
    }
}

TEST_F(Guide, MenuItemsHaveToolTipsInTheLanguageOfTheTexts) {
    start();
    EXPECT_TRUE(action("fichier").menu()->toolTipsVisible());
    EXPECT_EQ(base::to_bytes(action("ville_graph(2)").toolTip()),
              session.language.text(shell::Text::tip_serie));
    for (const auto& item : shell::menu_items()) {
        const auto tip = shell::menu_tip(item.name);
        EXPECT_EQ(tip.has_value(), action(std::string(item.name)).toolTip() !=
                                       action(std::string(item.name)).iconText())
            << item.name;
    }
}

} // namespace
