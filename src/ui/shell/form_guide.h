#pragma once

#include "shell/language.h"

#include <QDialog>
#include <QString>

class QListWidget;
class QTextBrowser;

namespace shell {

/// Returns the file of the guide in the language of the texts, which lies in the folder "docs"
/// beside the program; the English one where there is no such file, empty where there is none at
/// all.
QString guide_file(const LanguageTexts& language);

/// The guide in a window of its own: its text, and its headings, which lead to their places.
class Form_guide : public QDialog {
    Q_OBJECT

  public:
    Form_guide(const LanguageTexts& language, const QString& file, QWidget* owner);

  private:
    void list_headings();
    void show_heading(int row);

    QListWidget* headings_;
    QTextBrowser* text_;
};

} // namespace shell
