#include "shell/icon.h"

#include <QStringList>

namespace shell {

QIcon program_icon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/%1.png").arg(size));
    return icon;
}

} // namespace shell
