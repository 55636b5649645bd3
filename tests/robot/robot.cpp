#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <iostream>

/// A user inside the program: linked to the program's own main function, it types what the
/// environment variable ROBOT says into the main frame and then says "done" on standard output.
/// ROBOT holds pairs of lines, the object name of a field and the text; an "!" at the text's end is
/// the Enter key. With ROBOT_REPEATS he does so for ever, says how often he did, and "%1" in a text
/// is that number.
namespace {

void type(QWidget& frame, const QString& name, QString text) {
    auto* field = frame.findChild<QWidget*>(name);
    if (field == nullptr)
        qFatal("no field %s", qPrintable(name));
    const bool enters = text.endsWith('!');
    text.chop(enters ? 1 : 0);
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
    if (enters)
        QTest::keyClick(field, Qt::Key_Return);
}

void work() {
    QWidget* frame = QApplication::activeWindow();
    if (frame == nullptr) {
        QTimer::singleShot(10, work);
        return;
    }
    static int times = 0;
    const auto lines = qEnvironmentVariable("ROBOT").split('\n');
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2)
        type(*frame, lines[i], QString(lines[i + 1]).replace("%1", QString::number(times)));
    if (!qEnvironmentVariableIsSet("ROBOT_REPEATS")) {
        std::cout << "done" << std::endl;
        return;
    }
    std::cout << times++ << std::endl;
    QTimer::singleShot(10, work);
}

void begin() {
    QTimer::singleShot(0, work); // once the program waits for its user
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(begin)
