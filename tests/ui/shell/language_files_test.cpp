#include "base/files.h"
#include "base/qt_text.h"
#include "data/records.h"
#include "editor/panel_layout.h"
#include "shell/language.h"
#include "shell/menus.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

/// The language files that the program ships with.
namespace {

std::string bytes_of(const char* name) {
    return base::read_file(std::string(LANGUAGES_FOLDER "/") + name);
}

std::vector<std::string> keys_of(const std::string& bytes) {
    data::RecordReader reader(bytes);
    std::vector<std::string> keys;
    while (!reader.at_end()) {
        keys.push_back(reader.next());
        reader.next();
    }
    return keys;
}

/// The keys that the program looks up, as the main frame's tables and the dialogs spell them.
std::set<std::string> looked_up_captions() {
    std::set<std::string> keys = {"MDIForm1.Command1", "MDIForm1.Command2", "Form2.Label1",
                                  "Form2.Label2",      "Form2.Label3",      "Form2.Label4",
                                  "Form2.Label5",      "Form2.Label6",      "Form2.Command1",
                                  "Form3.Command1",    "Form3.Command2",    "Form3.Command3",
                                  "Form3.Label1 (0)",  "Form3.Label1 (1)",  "Form3.Label1 (2)",
                                  "Form3.Label1 (3)",  "Form4.Command1",    "Form4.Command2",
                                  "Form5.Label1",      "Form5.Command1 ",   "about"};
    const auto add = [&keys](std::string_view name) {
        if (!name.empty())
            keys.insert("MDIForm1." + base::to_bytes(base::from_utf8(name)));
    };
    for (const auto& item : shell::menu_items()) {
        if (!item.text)
            add(item.name);
    }
    for (const auto& tab : editor::tabs) {
        add(tab.caption_key);
        for (const auto& block : tab.blocks)
            add(block.caption_key);
    }
    return keys;
}

TEST(LanguageFiles, HaveTheSameKeysAndOtherTexts) {
    const auto english = bytes_of("english.lng");
    const auto french = bytes_of("french.lng");
    EXPECT_EQ(keys_of(english), keys_of(french));
    EXPECT_NE(english, french);
}

TEST(LanguageFiles, AreComplete) {
    for (const char* name : {"english.lng", "french.lng"}) {
        const std::string bytes = bytes_of(name);
        const shell::LanguageTexts texts(bytes);
        for (const auto& list : shell::value_lists) {
            if (list.prefix != "MENU_" && list.prefix != "MESSAGE_") {
                EXPECT_EQ(texts.list(list.prefix).size(), list.capacity) << name << list.prefix;
            }
        }
        std::set<std::string> captions;
        for (const auto& entry : texts.list("MENU_")) {
            EXPECT_TRUE(captions.insert(entry.code).second) << name << entry.code;
            EXPECT_FALSE(entry.text.empty()) << name << entry.code;
        }
        EXPECT_EQ(captions, looked_up_captions()) << name;
        for (const int message : {1, 2, 3, 4, 5, 7, 14, 15, 16, 17, 18})
            EXPECT_FALSE(texts.message(static_cast<data::Message>(message)).empty())
                << name << message;
        for (int status = 1; status <= 7; ++status)
            EXPECT_FALSE(texts.status(status).empty()) << name << status;
        std::multiset<std::string> keys;
        for (const auto& key : keys_of(bytes)) {
            if (key.starts_with(data::text_prefix))
                keys.insert(key);
        }
        std::multiset<std::string> expected_keys;
        for (const auto& row : data::texts)
            expected_keys.insert(std::string(data::text_prefix).append(row.key));
        EXPECT_EQ(keys, expected_keys) << name;
        for (std::size_t at = bytes.find('\n'); at < bytes.size(); at = bytes.find('\n', at + 1))
            ASSERT_EQ(bytes[at - 1], '\r') << name;
    }
}

TEST(LanguageFiles, FurtherTextsAreTheProgramsOwnAndKeepTheirPlaceholders) {
    const shell::LanguageTexts english(bytes_of("english.lng"));
    const shell::LanguageTexts french(bytes_of("french.lng"));
    EXPECT_EQ(french.text(shell::Text::locale), "fr");
    for (const auto& row : data::texts) {
        EXPECT_EQ(english.text(row.text), row.english);
        for (const char* mark : {"%1", "%2", "%3", "%4", "%5"})
            EXPECT_EQ(french.text(row.text).find(mark) == std::string::npos,
                      row.english.find(mark) == std::string_view::npos)
                << row.key;
    }
}

TEST(LanguageFiles, CodesAndTextsOfAListAreUnique) {
    for (const char* name : {"english.lng", "french.lng"}) {
        const shell::LanguageTexts texts(bytes_of(name));
        for (const auto& list : shell::value_lists) {
            std::set<std::string> codes;
            std::set<std::string> shown;
            for (const auto& entry : texts.list(list.prefix)) {
                EXPECT_TRUE(codes.insert(entry.code).second) << name << list.prefix << entry.code;
                // A list's choice is found by its text.
                const bool is_list =
                    list.prefix == "CULTURE_" || list.prefix == "REGION_" || list.prefix == "AIRE_";
                EXPECT_TRUE(shown.insert(entry.text).second || !is_list) << name << entry.text;
            }
        }
    }
}

} // namespace
