// Files that can't be loaded, or not to their end: what is told, what is left.
#include <gtest/gtest.h>

#include "tests/composer/loading_rig.h"

namespace corvana::prova {

namespace {

Linee PrimeDi(const Linee& linee, std::size_t quante) {
    return {linee.begin(), linee.begin() + static_cast<std::ptrdiff_t>(quante)};
}

}  // namespace

TEST(CaricaGuasto, AMissingFileIsToldAndLeavesAnEmptyMelodyWithItsName) {
    BancoGuasti b;
    b.PonFile("song", "");
    b.file.contenuti.erase("/programma/Melodie/Demo/song.mel");
    b.finestra.archivio.cmdEseguiFile_Click();
    b.EsceGuasto("2\r\n" + ParoleSistema(ENOENT));
    EXPECT_TRUE(b.V(soprano).Vuota());
    EXPECT_TRUE(b.finestra.riferimenti.lstBookMark.List->empty());
}

TEST(CaricaGuasto, AFileThatCantBeReadIsToldByNumberAndText) {
    for (const auto& [errore, testo] : {std::pair(EACCES, "13\r\n" + ParoleSistema(EACCES)),
                                        std::pair(EIO, "71\r\n" + ParoleSistema(EIO)),
                                        std::pair(EISDIR, "21\r\n" + ParoleSistema(EISDIR))}) {
        BancoGuasti b;
        b.PonFile("song", FileDi(dueVoci));
        b.file.erroreLeggi = errore;
        b.uscita.messaggi.clear();
        b.finestra.archivio.cmdEseguiFile_Click();
        b.EsceGuasto(testo);
        EXPECT_TRUE(b.V(soprano).Vuota());
    }
}

TEST(CaricaGuasto, AFileOfFourLinesFailsTheNameStaysAndTheSopranoHoldsTheLinesRead) {
    BancoGuasti b;
    b.Carica(PrimeDi(dueVoci, 4));
    b.EsceGuasto(guastoFine);
    EXPECT_EQ(b.V(soprano).testoNote, "60;62;64;65;");
    EXPECT_EQ(b.V(soprano).testoDurate, "1;1;1;1;");
    EXPECT_EQ(b.V(soprano).testoAttributi, "n;n;n;n;");
}

TEST(CaricaGuasto, AFileTooShortAtAnyLineFailsAndKeepsTheLinesBefore) {
    for (const std::size_t linee : {0U, 1U, 2U, 3U, 4U, 7U, 8U, 9U}) {
        BancoGuasti b;
        b.Carica(PrimeDi(dueVoci, linee));
        b.EsceGuasto(guastoFine);
        EXPECT_EQ(b.V(soprano).testoNote, linee > 0 ? dueVoci[0] : "") << linee;
        EXPECT_EQ(b.V(soprano).testoDurate, linee > 1 ? dueVoci[1] : "") << linee;
        EXPECT_EQ(b.V(soprano).testoAttributi, linee > 2 ? dueVoci[2] : "") << linee;
        EXPECT_EQ(b.V(basso).strumento, linee > 6 ? 32 : 16) << linee;
        EXPECT_EQ(b.V(basso).testoNote, linee > 7 ? dueVoci[7] : "") << linee;
        EXPECT_EQ(b.V(basso).testoDurate, linee > 8 ? dueVoci[8] : "") << linee;
        EXPECT_EQ(b.finestra.riferimenti.lstBookMark.List->size(), linee > 5 ? 2U : 0U) << linee;
        EXPECT_TRUE(b.Programmi().empty()) << linee;
    }
}

TEST(CaricaGuasto, AFileThatEndsBehindAWholePartLoads) {
    for (const std::size_t linee : {5U, 6U, 10U}) {
        BancoGuasti b;
        b.Carica(PrimeDi(dueVoci, linee));
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << linee;
        EXPECT_TRUE(b.HaSuonato()) << linee;
        EXPECT_FALSE(b.melodia.inCaricamento) << linee;
    }
}

TEST(CaricaGuasto, AFileCutAtAnyByteLoadsOrIsToldInOneBox) {
    const std::string intero = FileDi(dueVoci);
    int guasti = 0;
    for (std::size_t byte = 0; byte <= intero.size(); ++byte) {
        BancoGuasti b;
        b.Carica(intero.substr(0, byte));
        EXPECT_LE(b.riquadri.messaggi.size(), 1U) << byte;
        guasti += static_cast<int>(b.riquadri.messaggi.size());
        EXPECT_EQ(b.HaSuonato(), b.riquadri.messaggi.empty()) << byte;
        EXPECT_EQ(b.finestra.stato.lblNome.Caption(), "song") << byte;
        EXPECT_FALSE(b.finestra.stato.inEsecuzione) << byte;
        EXPECT_TRUE(b.uscita.NoteAccese().empty()) << byte;
    }
    EXPECT_GT(guasti, 40);
}

TEST(CaricaGuasto, ASopranoWith4Notes4DurationsAnd3AttributesIsToldAndDoesntPlay) {
    BancoGuasti b;
    b.CaricaCon({{3, "n;n;n;"}});
    b.EsceGuasto("danneggiato");
    EXPECT_EQ(b.V(soprano).testoNote, "60;62;64;65;");
    EXPECT_EQ(b.V(soprano).testoDurate, "1;1;1;1;");
    EXPECT_EQ(b.V(soprano).testoAttributi, "n;n;n;");
    EXPECT_EQ(b.V(basso).testoNote, "48;43;");
    EXPECT_EQ(b.Programmi().size(), 4U);
    EXPECT_EQ(b.finestra.voci.LblNoteString.Caption(), "");
}

TEST(CaricaGuasto, UnequalDurationsAreToldTheSame) {
    for (const char* durate : {"1;1;1;", "1;1;1;1;1;", "1;1;1;1", ""}) {
        BancoGuasti b;
        b.CaricaCon({{2, durate}});
        b.EsceGuasto("danneggiato");
    }
}

TEST(CaricaGuasto, InCaricamentoStaysAfterAFailureUntilTheNextPlayHasEnded) {
    BancoGuasti b;
    b.CaricaCon({{4, "fast"}});
    ASSERT_TRUE(b.melodia.inCaricamento);
    b.Subito(Fatto::Change, "Slider1", 200);
    EXPECT_FALSE(b.finestra.stato.lblModificato.Visible());
    b.finestra.play.cmdPlay_Click();
    EXPECT_FALSE(b.melodia.inCaricamento);
    b.Subito(Fatto::Change, "Slider1", 210);
    EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
}

TEST(CaricaGuasto, AVoiceOf32768NotesIsRefusedWithABox) {
    std::string note, durate, attributi;
    for (int i = 0; i < 32768; ++i)
        note += "60;", durate += "1;", attributi += "n;";
    BancoGuasti b;
    b.Carica({note, durate, attributi, " 60 ", " 16 "});
    b.EsceGuasto(troppo);
    EXPECT_EQ(b.V(soprano).testoNote, note);
    BancoGuasti altra;
    altra.Carica({"60;", "1;", "n;", " 60 ", " 16 ", "contralto;1", note, durate, attributi});
    altra.EsceGuasto(troppo);
    EXPECT_EQ(altra.V(contralto).testoNote, note);
}

TEST(CaricaGuasto, AVoiceOf32767NotesLoads) {
    std::string note, durate, attributi;
    for (int i = 0; i < 32767; ++i)
        note += "60;", durate += "1;", attributi += "n;";
    BancoGuasti b;
    b.CliccaNelTick(3, "cmdPlay");
    b.Carica({note, durate, attributi, " 60 ", " 16 "});
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "32767");
    EXPECT_EQ(b.V(soprano).ultimaNota, 32766);
}

TEST(CaricaGuasto, BehindALoadThatFailedPlaySoundsNothingOfTheMelodyBefore) {
    for (const std::size_t linee : {1U, 2U, 3U, 4U, 7U, 8U, 9U}) {
        BancoGuasti b;
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            b.Voce(voce, "72;74;", "1");
        b.Carica(PrimeDi(dueVoci, linee));
        b.riquadri.messaggi.clear();
        b.Suona();
        EXPECT_FALSE(b.HaSuonato()) << linee;
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << linee;
        EXPECT_EQ(b.finestra.play.cmdPlay.Caption(), "Play") << linee;
        EXPECT_TRUE(b.finestra.menu.file.Enabled()) << linee;
    }
}

TEST(CaricaGuasto, WhenTheTempoFailsPlaySoundsTheNewSopranoAndNoOldVoice) {
    BancoGuasti b;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        b.Voce(voce, "72;74;", "1");
    b.CaricaCon({{4, "fast"}});
    b.Suona();
    EXPECT_EQ(b.Messaggi(1).size(), 8U);
    EXPECT_EQ(b.Messaggi().size(), 8U);
    for (const Mandato& m : b.Messaggi())
        EXPECT_LT(m.nota, 72);
}

}  // namespace corvana::prova
