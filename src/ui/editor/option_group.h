#pragma once

#include <QRadioButton>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace editor {

/// An option that is chosen by the press, not by the release; pressing it again chooses it again.
/// Its group switches it on and off, since none at all may be on.
class OptionButton : public QRadioButton {
    Q_OBJECT

  public:
    OptionButton(const QString& caption, QWidget* parent);

    /// Makes this option the one that the Tab key reaches; the arrow keys reach the others.
    void take_tab_stop();

  protected:
    void nextCheckState() override {}
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QList<OptionButton*> group() const;
};

/// The options of one field with the codes that they stand for.
class OptionGroup {
  public:
    /// Adds an option without a code: it is never on, and pressing it does nothing.
    void add(OptionButton& option);

    /// Adds an option; `chosen` is called with its code when it is pressed.
    void add(OptionButton& option, const std::string& code,
             const std::function<void(const std::string& code)>& chosen);

    /// Makes the first option the one that the Tab key reaches, until another one is on or chosen.
    void make_reachable() const { options_.front().button->take_tab_stop(); }

    /// Returns the frame around the options. There must be one.
    QWidget& frame() const { return *options_.front().button->parentWidget(); }

    /// Switches on the options whose code is the value, letter case aside, and off all others; the
    /// empty value switches none on.
    void show(std::string_view value) const;

  private:
    struct Option {
        OptionButton* button;
        std::string code; // the empty one is never shown
    };
    std::vector<Option> options_;
};

} // namespace editor
