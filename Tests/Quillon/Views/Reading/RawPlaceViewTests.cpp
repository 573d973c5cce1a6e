// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Reading/RawPlaceView.h"

#include "Quillon/Stores/FileReading.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace quillon {
namespace {

/// As the view shows it: each line with its number, what is marked between "[" and "]".
std::string shown(const FilePlace& place) {
    RawPlaceView view;
    const RawPlace raw = RawPlace::of(place);
    view.showPlace(raw);
    EXPECT_EQ(view.toPlainText().count('\n') + 1, view.lineNumbers().size());
    const QStringList lines = view.toPlainText().split('\n');
    std::string text;
    for (qsizetype index = 0; index < lines.size(); ++index) {
        QString line = lines[index];
        if (index == static_cast<qsizetype>(raw.markedLine)) {
            EXPECT_EQ(line.mid(raw.markBegin, raw.markLength), view.markedText());
            line.insert(raw.markBegin + raw.markLength, ']').insert(raw.markBegin, '[');
        }
        text += (view.lineNumbers()[index] + ' ' + line).toStdString() + '\n';
    }
    return text;
}

TEST(RawPlace, StandsAmongTheLinesAroundItAsTheyAreInTheFile) {
    EXPECT_EQ(shown({8, "1\n2\n3\n4\r\n\n6\r7\n<A:1>b ", "<NAME:3>Al\t \n9\r\n\r10", false, false}),
              "4 4\n5 \n6 6\n7 7\n8 <A:1>b [<NAME:3>]Al␉ \n9 9\n10 \n11 10\n");
    EXPECT_EQ(shown({3, "of 2\n", "<X:1>1", true, true}), "2 …of 2\n3 [<X:1>]1…\n");
    EXPECT_EQ(shown({1, "", "", false, false}), "1 []\n");
}

TEST(RawPlace, MarksWhatItIsAbout) {
    const std::tuple<std::string, std::string> cases[] = {
        {"<NAME", "[<NAME]"},           {"QSO: 14000 CW \n", "[QSO: 14000 CW] "},
        {"text <EOR>", "[text] <EOR>"}, {"\xFCller", "[⟨FC⟩]ller"},
        {"über <X>", "[über] <X>"},     {std::string("\0\0a", 3), "[␀]␀a"},
    };
    for (const auto& [behind, expected] : cases) {
        const std::string text = shown({1, "J\xF6\x1B", behind, false, false});
        EXPECT_EQ(text.substr(0, text.find('\n')), "1 J⟨F6⟩␛" + expected);
    }
}

TEST(RawPlace, IsCutOutOfALineWithoutEnd) {
    const std::string text(FilePieces::widestSide, 'x');
    EXPECT_EQ(shown({7, text, text, true, true}),
              "7 …" + text + '[' + text.substr(0, 200) + ']' + text.substr(200) + "…\n");
}

}  // namespace
}  // namespace quillon
