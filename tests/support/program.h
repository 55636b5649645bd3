#pragma once

#include "support/folder.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>
#include <string>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace support {

/// Runs of the built program, in a folder of its own and on no display.
class Program : public testing::Test {
  protected:
    Program() {
        for (const char* name : {"english.lng", "french.lng"})
            QFile::copy(QStringLiteral(LANGUAGES_FOLDER "/") + QLatin1String(name),
                        folder.native(QLatin1String(name)));
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.warning=false"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.native({}));
    }

    void start(const QStringList& arguments, const char* program = PROGRAM) {
        process.start(QString::fromLocal8Bit(program), arguments);
        ASSERT_TRUE(process.waitForStarted());
    }
    /// Returns the exit status.
    int run(const QStringList& arguments) {
        start(QStringList{"--folder", folder.native({})} + arguments);
        EXPECT_TRUE(process.waitForFinished(20000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        output = process.readAllStandardOutput().toStdString();
        errors = process.readAllStandardError().toStdString();
        return process.exitCode();
    }

#ifdef Q_OS_UNIX
    /// No file of the program can grow beyond that many bytes, as on a disk that is full.
    void limit_files_to(rlim_t bytes) {
        process.setChildProcessModifier([bytes] {
            const rlimit limit{bytes, bytes};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        });
    }
#endif

    static std::string province_line(const std::string& identifier, const std::string& line_end) {
        std::string line = identifier;
        for (int field = 2; field <= 59; ++field)
            line.append(1, ';').append(std::to_string(field));
        return line + line_end;
    }

    support::Folder folder;
    QProcess process;
    std::string output;
    std::string errors;
};

} // namespace support
