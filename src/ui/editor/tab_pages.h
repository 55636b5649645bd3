#pragma once

#include "editor/controls.h"
#include "shell/language.h"

#include <QList>
#include <QWidget>

class QScrollArea;
class QStackedWidget;
class QTabBar;

namespace editor {

/// The tab strip and the pages with the fields' controls. Where the window is too low for the
/// highest page, the pages scroll.
class TabPages : public QWidget {
    Q_OBJECT

  public:
    /// Builds the pages; all their controls are in `controls` then.
    TabPages(const shell::LanguageTexts& language, Controls& controls, QWidget* parent);

    /// Aligns the controls and takes the width that they need now that all captions stand.
    void fit_to_captions();

    /// Returns the open page, counted from 0.
    int page() const;
    /// Opens the page; a number that no page has does nothing.
    void show_page(int page);

    /// Opens the control's page and gives it the focus back.
    void return_to(QWidget& control);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    int page_of(const QWidget& control) const;
    void fit_width(int height);

    QTabBar* strip_;
    QStackedWidget* stack_;
    QList<QScrollArea*> pages_; // in the order of the tabs
};

} // namespace editor
