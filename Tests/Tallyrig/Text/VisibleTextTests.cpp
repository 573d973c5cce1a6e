// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/VisibleText.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace tallyrig::text {
namespace {

TEST(VisibleText, HasASignForWhatActsUnseenAndIsolatesWhatRunsToTheLeft) {
    const std::tuple<std::string, std::string> cases[] = {
        {"DL1ABC Jörg €", "DL1ABC Jörg €"},
        {std::string("a\0\x1B[2J\x7F\t", 8), "a␀␛[2J␡␉"},
        {"a\r\nb\nc\rd\u2028e\u2029", "a⏎b⏎c␍d⏎e⏎"},
        {"a\u0085\u009B\u00A0", "a\uFFFD\uFFFD\u00A0"},
        {"\u202Egpj.exe\u202C", "⟨RLO⟩gpj.exe⟨PDF⟩"},
        {"\u2066\u2067\u2068\u2069\u200E\u200F\u061C\u202A\u202B\u202D",
         "⟨LRI⟩⟨RLI⟩⟨FSI⟩⟨PDI⟩⟨LRM⟩⟨RLM⟩⟨ALM⟩⟨LRE⟩⟨RLE⟩⟨LRO⟩"},
        {"שלום \u0627\u200B👍🏽", "\u2068שלום \u0627\u2069\u200B👍🏽"},
        {"Band: שלום, עולם 20m אב", "Band: \u2068שלום, עולם\u2069 20m \u2068אב\u2069"},
        {"cut off\xE2\x80", "cut off\xE2\x80"}};
    for (const auto& [text, shown] : cases) {
        EXPECT_EQ(visibleText(text), shown);
        const bool isIsolated = shown.find("\u2068") != std::string::npos;
        EXPECT_EQ(holdsUnseen(text), text != shown && !isIsolated) << shown;
    }
}

TEST(VisibleText, ShowsBytesThatAreNoTextByTheirValue) {
    EXPECT_EQ(visibleBytes("J\xF6rg Jörg\t\xE2\x82 \xFF"), "J⟨F6⟩rg Jörg␉⟨E2⟩⟨82⟩ ⟨FF⟩");
    EXPECT_EQ(visibleBytes(""), "");
}

}  // namespace
}  // namespace tallyrig::text
