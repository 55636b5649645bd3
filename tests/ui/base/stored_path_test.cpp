#include "base/qt_text.h"
#include "base/stored_path.h"
#include "support/folder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

using base::native_path;
using base::stored_path;

TEST(StoredPath, BecomesNative) {
    const std::vector<std::pair<std::string, const char*>> paths = {
        {"c:\\home\\me\\x.csv", "/home/me/x.csv"},
        {"C:\\home\\me\\x.csv", "/home/me/x.csv"},
        {"c:\\\\home\\\\\\me\\x.csv", "/home/me/x.csv"},
        {"c:/home/me/x.csv", "/home/me/x.csv"},
        {"/home/me/x.csv", "/home/me/x.csv"},
        {"/home//me/x.csv", "/home/me/x.csv"},
        {"c:\\", "/"},
        {"c:", "."},
        {"c:\\data\\\xE9t\xE9.csv", "/data/\xC3\xA9t\xC3\xA9.csv"},
    };
    for (const auto& [stored, native] : paths)
        EXPECT_EQ(native_path(stored), QString::fromUtf8(native)) << stored;
}

TEST(StoredPath, ComesFromNative) {
    EXPECT_EQ(stored_path("/home/me/x.csv"), "c:\\home\\me\\x.csv");
    EXPECT_EQ(stored_path("/"), "c:\\");
    EXPECT_EQ(stored_path("x.csv"), base::in_folder(stored_path(QDir::currentPath()), "x.csv"));
    EXPECT_EQ(stored_path("d:\\data\\x.csv"), "d:\\data\\x.csv");
    EXPECT_EQ(stored_path("/:x/y"), "c:\\:x\\y");
}

TEST(StoredPath, HoldsEveryNameThatConfigTxtCannot) {
    for (const char* name : {"/tmp/Карты 地図/x.csv", "/a/\U0001F30D", "/e\u0301",
                             "/\x1A/\x1A"
                             "0041"}) {
        const QString native = QString::fromUtf8(name);
        const std::string stored = stored_path(native);
        EXPECT_EQ(native_path(stored), native) << name;
        EXPECT_EQ(stored_path(base::path_text(stored)), stored) << "as a field shows it";
        EXPECT_EQ(native_path(base::folder_of(stored) + "\xE9t\xE9"),
                  native.left(native.lastIndexOf('/') + 1) + QString::fromUtf8("été"));
    }
    EXPECT_FALSE(base::is_storable_text(QString::fromUtf8("/tmp/Карты")));
    EXPECT_FALSE(base::is_storable_text("/tmp/\"x\""));
    EXPECT_EQ(base::path_text("c:\\a\x1A"
                              "4"),
              base::to_qstring("c:\\a\x1A"
                               "4"));
}

TEST(StoredPath, FindsNamesThatDifferInLetterCaseOnly) {
    const support::Folder folder;
    const QDir dir(folder.native());
    dir.mkpath(QString::fromUtf8("Gfx/\xC3\x89t\xC3\xA9"));
    QFile(dir.filePath(QString::fromUtf8("Gfx/\xC3\x89t\xC3\xA9/Ship.BMP")))
        .open(QIODevice::WriteOnly);
    const std::string stored = folder.path();
    const QString found = dir.filePath(QString::fromUtf8("Gfx/\xC3\x89t\xC3\xA9/Ship.BMP"));
    EXPECT_EQ(native_path(stored + "\\gfx\\\xE9t\xE9\\SHIP.bmp"), found);
    EXPECT_EQ(native_path(stored + "\\GFX\\new.bmp"), dir.filePath("Gfx/new.bmp"));

    // The exact name wins over one that differs in letter case.
    QFile(dir.filePath("a.csv")).open(QIODevice::WriteOnly);
    QFile(dir.filePath("A.csv")).open(QIODevice::WriteOnly);
    EXPECT_EQ(native_path(stored + "\\a.csv"), dir.filePath("a.csv"));
    EXPECT_EQ(native_path(stored + "\\A.csv"), dir.filePath("A.csv"));
}

TEST(StoredPath, CurrentFolderIsSearchedForRelativeNames) {
    const QString before = QDir::currentPath();
    const support::Folder folder;
    QDir::setCurrent(folder.native());
    QFile("Province.csv").open(QIODevice::WriteOnly);
    EXPECT_EQ(QFileInfo(native_path("PROVINCE.CSV")).absoluteFilePath(),
              QFileInfo("Province.csv").absoluteFilePath());
    QDir::setCurrent(before);
}

TEST(StoredPath, FolderIsWhatTheLastSeparatorEnds) {
    EXPECT_EQ(base::folder_of("c:\\data\\x.csv"), "c:\\data\\");
    EXPECT_EQ(base::folder_of("c:\\x.csv"), "c:\\");
    EXPECT_EQ(base::folder_of("c:"), "");
}

TEST(StoredPath, HoldsNamesOfTheCodePage) {
    EXPECT_TRUE(base::is_storable(QString::fromUtf8("\xC3\xA9t\xC3\xA9 \xE2\x82\xAC?.csv")));
    EXPECT_FALSE(base::is_storable(QString::fromUtf8("\xCE\xB1.csv")));
    EXPECT_FALSE(base::is_storable("a\\b"));
}

TEST(QtText, EveryByteSurvivesAndOtherCharactersBecomeQuestionMarks) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(base::to_bytes(base::to_qstring(bytes)), bytes);
    EXPECT_EQ(base::to_qstring("\x80 \xE9 \x9F"),
              QString::fromUtf8("\xE2\x82\xAC \xC3\xA9 \xC5\xB8"));
    EXPECT_EQ(base::to_bytes(QString::fromUtf8("a\xCE\xB1\xF0\x9F\x8C\x8D.")), "a??.");
}

} // namespace
