#pragma once

#include <QDialog>

class QLineEdit;

namespace shell {
struct Session;
}

namespace gfx {

/// The set name box. What is typed becomes the current set name; a box that is closed in another
/// way leaves that name as it was.
class Form5 : public QDialog {
    Q_OBJECT

  public:
    Form5(shell::Session& session, QWidget* owner);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void confirm();

    shell::Session& session_;
    QLineEdit* name_;
};

} // namespace gfx
