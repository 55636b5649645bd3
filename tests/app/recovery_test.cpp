#include "support/program.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QThread>

#ifdef Q_OS_UNIX
#include <csignal>

/// What is left of unsaved changes when the system ends the program.
namespace {

class Recovery : public support::Program {
  protected:
    Recovery() {
        folder.write("program/english.lng", folder.read("english.lng"));
        auto environment = process.processEnvironment();
        for (const char* name : {"home", "data", "temporary"})
            folder.make_folder(QString::fromLatin1(name));
        environment.insert("HOME", folder.native("home"));
        environment.insert("XDG_DATA_HOME", folder.native("data"));
        environment.insert("TMPDIR", folder.native("temporary"));
        process.setProcessEnvironment(environment);
    }

    /// Starts the program with that user, and waits until he has done it all.
    void use(const QString& robot) {
        auto environment = process.processEnvironment();
        environment.insert("ROBOT", robot);
        process.setProcessEnvironment(environment);
        start({"--folder", folder.native("program")}, ROBOT);
        while (!process.canReadLine())
            ASSERT_TRUE(process.waitForReadyRead(20000));
        ASSERT_EQ(process.readLine(), "done\n");
    }
    /// Returns the status that the program ends with at the signal.
    int end_by(int signal) {
        ::kill(static_cast<pid_t>(process.processId()), signal);
        EXPECT_TRUE(process.waitForFinished(20000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    /// Returns the recovery copies, wherever they are.
    QStringList copies() const {
        QStringList found;
        QDirIterator files(folder.native(), {"recovered*.csv"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            found += QDir(folder.native()).relativeFilePath(files.next());
        return found;
    }

    static constexpr const char* renames = "selection_text\n5!\nnom_province\nentered!\n"
                                           "selection_text\n6!\nnom_province\ntyped, not left";
};

TEST_F(Recovery, ASignalLosesNeitherEnteredNorTypedTexts) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        use(renames);
        EXPECT_EQ(end_by(signal), 128 + signal);
        ASSERT_EQ(copies(), QStringList("program/recovered.csv"));
        const std::string copy = folder.read("program/recovered.csv");
        EXPECT_NE(copy.find("\r\n5;entered;"), std::string::npos) << signal;
        EXPECT_NE(copy.find("\r\n6;typed, not left;"), std::string::npos) << signal;
        QFile::remove(folder.native("program/recovered.csv"));
    }
}

TEST_F(Recovery, NothingThatIsTwoSecondsOldDiesWithTheProgram) {
    use(renames);
    QElapsedTimer time;
    for (time.start(); copies().isEmpty() && time.elapsed() < 2000;)
        QThread::msleep(20);
    process.kill();
    EXPECT_TRUE(process.waitForFinished(20000));
    ASSERT_EQ(copies(), QStringList("program/recovered.csv"));
    const std::string copy = folder.read("program/recovered.csv");
    EXPECT_NE(copy.find("\r\n5;entered;"), std::string::npos);
    EXPECT_NE(copy.find("\r\n6;typed, not left;"), std::string::npos);
}

TEST_F(Recovery, WithoutChangesThereIsNoCopy) {
    use("selection_text\n5!\nselection_text\n6");
    EXPECT_EQ(end_by(SIGTERM), 128 + SIGTERM);
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(Recovery, AFolderThatCannotBeWrittenLosesNothing) {
    use(renames);
    ASSERT_TRUE(QFile::rename(folder.native("program"), folder.native("gone")));
    folder.write("program", "a file stands where the folder was");
    EXPECT_EQ(end_by(SIGTERM), 128 + SIGTERM);
    const QStringList found = copies();
    ASSERT_EQ(found.size(), 1);
    EXPECT_FALSE(found[0].startsWith("gone")) << found[0].toStdString();
    EXPECT_NE(folder.read(found[0]).find("\r\n5;entered;"), std::string::npos);
    EXPECT_TRUE(process.readAllStandardError().contains(found[0].toUtf8())) << "told where";
}

TEST_F(Recovery, AFullDiskIsToldOfAndLeavesNoHalfFile) {
    limit_files_to(1000);
    use(renames);
    EXPECT_EQ(end_by(SIGTERM), 128 + SIGTERM);
    EXPECT_TRUE(process.readAllStandardError().contains("changes could not be written: Run-time"));
    EXPECT_EQ(QDir(folder.native("program")).entryList(QDir::Files | QDir::Hidden),
              QStringList("english.lng"));
}

#ifdef Q_OS_LINUX
TEST_F(Recovery, WhatTheCopyHoldsIsNotWrittenAgain) {
    use(renames);
    QElapsedTimer time;
    for (time.start(); copies().isEmpty() && time.elapsed() < 2000;)
        QThread::msleep(20);
    const rlimit full{1000, 1000};
    ::prlimit(static_cast<pid_t>(process.processId()), RLIMIT_FSIZE, &full, nullptr);
    EXPECT_EQ(end_by(SIGTERM), 128 + SIGTERM);
    EXPECT_TRUE(process.readAllStandardError().contains("changes are in " +
                                                        folder.native("program").toUtf8()));
}
#endif

} // namespace

#endif
