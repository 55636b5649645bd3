#pragma once

#include <QDialog>

namespace shell {

struct Session;

/// The about box: the application's title and version.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    frmAbout(const Session& session, QWidget* owner);
};

} // namespace shell
