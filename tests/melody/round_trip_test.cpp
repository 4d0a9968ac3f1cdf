// What is written is read back, and whatever bytes a file has it is read.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/melody/mel_check.h"
#include "tests/melody/mel_lines.h"
#include "tests/melody/random_melody.h"

namespace corvana::prova {

namespace {

/// Lines as files have them, and some that only look like it.
std::string FileACaso() {
    static const std::vector<std::string> righe = {"60;62;",
                                                   "1;0.5;",
                                                   "1;0,5;",
                                                   "n;s;",
                                                   " 60 ",
                                                   " 16 ",
                                                   "16;3;4;1",
                                                   "16;3;4",
                                                   "",
                                                   ";",
                                                   "a;b;",
                                                   "a;b",
                                                   "contralto;48",
                                                   "tenore;1",
                                                   "basso;32",
                                                   "basso",
                                                   "contralto;1;",
                                                   "soprano;1",
                                                   "1 \xF7 2 \xF7Tutta;",
                                                   "1 \xF7 2 \xF7Tutta;2 \xF7 2 \xF7 a;"};
    const auto scelte =
        *rc::gen::container<std::vector<std::string>>(rc::gen::weightedOneOf<std::string>(
            {{9, rc::gen::elementOf(righe)}, {1, rc::gen::arbitrary<std::string>()}}));
    std::string byte;
    for (const std::string& riga : scelte)
        byte += riga + *rc::gen::element<std::string>("\r\n", "\r\n", "\n", "\r");
    return byte;
}

}  // namespace

RC_GTEST_PROP(AndataERitorno, WhatIsWrittenIsReadBackTheSame, (bool virgola)) {
    const char separatore = virgola ? ',' : '.';
    const ContenutoMel melodia = MelodiaACaso(separatore);
    const auto letta = Contenuto(LeggiMel(melodia.Byte(), separatore));
    RC_ASSERT(letta.has_value());
    RC_ASSERT(*letta == melodia);
    RC_ASSERT(letta->Byte() == melodia.Byte());
}

RC_GTEST_PROP(AndataERitorno, AFileMadeWithTheOtherSeparatorIsReadToo, (bool virgola)) {
    const ContenutoMel melodia = MelodiaACaso(virgola ? ',' : '.');
    const LetturaMel propria = LeggiMel(melodia.Byte(), virgola ? ',' : '.');
    const LetturaMel altra = LeggiMel(melodia.Byte(), virgola ? '.' : ',');
    RC_ASSERT(!altra.guasto);
    RC_ASSERT(altra.soprano[1].find(virgola ? ',' : '.') == std::string::npos);
    RC_ASSERT(altra.soprano[1].size() == propria.soprano[1].size());
    RC_ASSERT(LeggiMel(Contenuto(altra)->Byte(), virgola ? ',' : '.').soprano == propria.soprano);
}

RC_GTEST_PROP(AndataERitorno, AnyBytesAreRead, (const std::string& byte)) {
    RC_ASSERT(ControllaMel(byte) == "");
}

RC_GTEST_PROP(AndataERitorno, AnyLinesAreRead, ()) {
    RC_ASSERT(ControllaMel(FileACaso()) == "");
}

RC_GTEST_PROP(AndataERitorno, AFileThatIsCutAnywhereIsRead, ()) {
    const std::string byte = MelodiaACaso('.').Byte();
    const auto fine = *rc::gen::inRange<std::size_t>(0, byte.size() + 1);
    RC_ASSERT(ControllaMel(byte.substr(0, fine)) == "");
}

}  // namespace corvana::prova
