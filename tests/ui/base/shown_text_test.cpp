#include "base/captions.h"
#include "base/shown_text.h"
#include "base/stored_path.h"

#include <gtest/gtest.h>
#include <string>

namespace {

TEST(ShownText, HasASaneLength) {
    const std::string record = "line 7, " + std::string(1'000'000, 'x') + ": a number was expected";
    const QString message = base::message_text(record);
    EXPECT_TRUE(message.startsWith("line 7, xxx")) << message.toStdString();
    EXPECT_TRUE(message.endsWith("xxx: a number was expected"));
    EXPECT_LT(message.size(), 2000);
    EXPECT_EQ(base::message_text("short\nand whole"), "short\nand whole");

    const shell::LanguageTexts language("\"MENU_MDIForm1.gfx\",\"" + record +
                                        "\"\r\n\"MENU_about\",\"" + record + "\"");
    EXPECT_LT(base::frame_caption(language, "gfx", "Gfx").size(), 200);
    EXPECT_LT(base::dialog_caption(language, "about", "About").size(), 200);
}

TEST(ShownText, SpellsPathsAndShowsWhatANulWouldEnd) {
    const QString path = QString::fromUtf8("/tmp/Карты/été");
    EXPECT_EQ(base::message_text(base::path_bytes(path) + std::string(": a\0b", 5)),
              path + ": a\\0b");
}

} // namespace
