// Whatever is done to the bookmarks: what is written of them splits cleanly and is read back.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "melody/mel_reader.h"
#include "tests/composer/bookmark_rig.h"
#include "tests/composer/voice_model.h"

namespace corvana::prova {

namespace {

/// Names that somebody may type, of characters that the file's code page has.
std::string NomeACaso() {
    const auto pezzi = *rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
        "a", "b ", " ", ";", "÷", ".", ":", "1", "2 ÷ 3", "contralto;48;", "è", "€", "\"", "-"));
    std::string nome;
    for (const std::string& pezzo : pezzi)
        nome += pezzo;
    return nome;
}

void Gesto(BancoRiferimenti& b) {
    constexpr std::array comandi = {"cmdModBm", "cmdMbUd0", "cmdMbUd1", "cmdDelBm"};
    const int righe = static_cast<int>(b.Elenco().size());
    if (righe > 0) b.Tocca("lstBookMark", Tra(0, righe - 1));
    b.riquadri.risposte = {Tra(0, 3) > 0};
    b.riquadri.testi = {NomeACaso()};
    switch (Tra(0, 9)) {
        case 0: return b.Tocca("cmdRenameBm");
        case 1: return b.Nota();
        case 2: return b.Tocca("cmdCanc");
        case 3: {
            const int note = b.melodia.voci[soprano].numeroNote;
            const int prima = Tra(1, std::max(note, 1));
            return b.Tratto(prima, Tra(prima, std::max(note, 1)));
        }
        case 4:
        case 5:
        case 6: return b.Tocca(comandi.at(static_cast<std::size_t>(Tra(0, 3))));
        default: return b.Tocca("cmdAddBm");
    }
}

int Quanti(const std::string& testo, char segno) {
    return static_cast<int>(std::count(testo.begin(), testo.end(), segno));
}

LetturaMel Scritta(BancoRiferimenti& b) {
    b.melodia.nomeMelodia = "prova";
    b.Tocca("mnuSalva");
    return LeggiMel(b.ContenutoFile("prova"), '.');
}

}  // namespace

TEST(RiferimentiScritti, ASemicolonCantEnterByAddingOrByRenamingSoASavedListAlwaysSplitsCleanly) {
    BancoRiferimenti b;
    b.Aggiungi("a;b");
    b.Aggiungi("a");
    b.Aggiungi("12345678901;2");
    b.Scegli("1 ÷ 12 ÷ a");
    b.riquadri.testi = {"x;y"};
    b.Tocca("cmdRenameBm");
    b.Nota();
    EXPECT_EQ(b.finestra.riferimenti.TestoRiferimenti(), "1 ÷ 13 ÷Tutta;1 ÷ 12 ÷ a;");
    EXPECT_EQ(Scritta(b).riferimenti, b.Elenco());
}

TEST(RiferimentiScritti, AListWithoutEntriesIsNotWritten) {
    BancoRiferimenti b;
    EXPECT_EQ(b.finestra.riferimenti.TestoRiferimenti(), "");
    EXPECT_FALSE(Scritta(b).conRiferimenti);
}

TEST(RiferimentiScritti, ALoadShowsTheListAndOneWithoutBookmarksClearsIt) {
    BancoRiferimenti b;
    b.Aggiungi("a");
    b.Aggiungi("b");
    const Righe prima = b.Elenco();
    Scritta(b);
    b.Tocca("cmdHideBm");
    b.Tocca("cmdReset");
    EXPECT_TRUE(b.Elenco().empty());
    EXPECT_FALSE(b.Aperto());
    b.BancoComposer::Scegli("prova");
    b.Tocca("cmdEseguiFile");
    EXPECT_EQ(b.Elenco(), prima);
    EXPECT_TRUE(b.Aperto());
    EXPECT_FALSE(b.Modificata());
}

RC_GTEST_PROP(RiferimentiScritti, AnySequenceOfCommandsLeavesAListThatIsReadBackAsItStands, ()) {
    BancoRiferimenti b;
    const int gesti = *rc::gen::inRange(1, 40);
    for (int gesto = 0; gesto < gesti; ++gesto) {
        Gesto(b);
        const Righe& elenco = b.Elenco();
        RC_ASSERT(elenco.size() != 1);
        RC_ASSERT(Quanti(b.finestra.riferimenti.TestoRiferimenti(), ';') ==
                  static_cast<int>(elenco.size()));
        for (const std::string& riga : elenco)
            RC_ASSERT(riga.find(" ÷ ") != std::string::npos);
    }
    RC_PRE(!b.melodia.voci[soprano].Vuota());
    RC_ASSERT(Scritta(b).riferimenti == b.Elenco());
}

RC_GTEST_PROP(RiferimentiScritti, AnyBookmarkThatIsPlayedLeavesNothingSounding, ()) {
    BancoRiferimenti b;
    b.finestra.riferimenti.lstBookMark.List =
        Righe{"1 ÷ 12 ÷Tutta",
              std::to_string(Tra(-20, 40)) + " ÷ " + std::to_string(Tra(-20, 40)) + " ÷ a"};
    b.finestra.riferimenti.frBookMark.Visible = true;
    b.Tocca("lstBookMark", 1);
    b.Tocca("cmdPlayBm");
    RC_ASSERT(b.uscita.NoteAccese().empty());
    RC_ASSERT(b.finestra.play.cmdPlay.Caption() == "Play");
    RC_ASSERT(b.finestra.play.cmdPlay.Enabled());
}

}  // namespace corvana::prova
