// A whole melody entered with the mouse and the keyboard in the real window: what is saved is the
// file that somebody else's hand had written, and the play sounds like it to the last sample.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QTest>

#include "core/text.h"
#include "melody/melody.h"
#include "tests/composer/demo_files.h"
#include "tests/composer/scribe.h"
#include "tests/core/temporary_folder.h"
#include "tests/desktop/hand_stage.h"
#include "tests/outputs/hearing.h"

namespace corvana::prova {
namespace {

/// Four voices with dotted notes, triplets and rests; every other dotted note is entered by a tie.
const std::string corale = "Amazing grace";

struct PalcoMelodia : PalcoAMano {
    explicit PalcoMelodia(const std::string& cartella) : PalcoAMano(cartella) {
        Tocca("ToolButton2");
        AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
        Calma();
    }

    /// Of a white key the part that no black one covers.
    QPoint NelTasto(const std::string& nome) {
        const QRect area = Di(nome).rect();
        return {area.width() / 2, area.height() * 9 / 10};
    }
    void Fai(const GestoMouse& gesto) {
        const bool tasto = gesto.controllo.starts_with("lb");
        const QPoint dove = tasto ? NelTasto(gesto.controllo) : Di(gesto.controllo).rect().center();
        gesto.doppio ? ToccaDueVolte(gesto.controllo, dove) : Tocca(gesto.controllo, dove);
    }
    /// In the window of the instruments, which a click on the picture opens.
    void ScegliStrumento(int programma) {
        Tocca("pictCi");
        AspettaFinestra(scrivania, QStringLiteral("frmStrum"));
        auto& lista = Di("List1").Come<QListWidget>();
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          lista.visualItemRect(lista.item(0)).center());
        Batti(Qt::Key_Home);
        for (int riga = 0; riga < programma; ++riga)
            Batti(Qt::Key_Down);
        Tocca("cmdEsci");
        AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
        Calma();
    }
    void Scrivi(std::size_t voce, const std::string& strumento, const TestiVoce& testi) {
        Tocca("VoceAttiva" + std::to_string(voce));
        ScegliStrumento(std::stoi(strumento));
        for (const GestoMouse& gesto : GestiDi(testi))
            Fai(gesto);
    }
    void Scrivi(const LetturaMel& letta) {
        Trascina("Slider1", "Velocità", std::string(SenzaBlanchi(letta.tempo)));
        Scrivi(soprano, letta.strumento.front(), letta.soprano);
        for (const BloccoMel& blocco : letta.blocchi)
            Scrivi(blocco.voce, blocco.strumento,
                   {blocco.testi.at(0), blocco.testi.at(1), blocco.testi.at(2)});
    }
    void SalvaConNome(const std::string& nome) {
        Tocca("ToolButton5");
        Rispondi(nome);
    }
    /// It plays at once, and that play is waited for.
    void Apri(const std::string& nome) {
        Tocca("ToolButton3");
        auto& lista = Di("List1").Come<QListWidget>();
        const auto righe = lista.findItems(QString::fromStdString(nome), Qt::MatchExactly);
        ASSERT_EQ(righe.size(), 1);
        lista.scrollToItem(righe.front());
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          lista.visualItemRect(righe.front()).center());
        Tocca("cmdEseguiFile");
    }
};

TEST(MelodiaAMano, WhatIsEnteredInAllFourVoicesIsSavedAsTheFileAndSoundsLikeIt) {
    const CartellaProvvisoria cartella;
    PalcoAMano::Udito scritto, aperto;
    {
        PalcoMelodia p(cartella.Di(""));
        p.Scrivi(LeggiMel(ByteDemo(corale), '.'));
        p.SalvaConNome("by hand");
        EXPECT_EQ(Contenuto(cartella.Di("by hand.mel")), ByteDemo(corale));
        scritto = p.Suona();
    }
    {
        PalcoMelodia p(CORVANA_DEMO "/");
        p.Apri(corale);
        aperto = p.Suona();
    }
    EXPECT_GT(scritto.mandati.size(), 300U);
    EXPECT_TRUE(scritto.mandati == aperto.mandati);
    EXPECT_TRUE(scritto.suono == aperto.suono);
    ASSERT_GT(scritto.fine, 30);
    const std::vector<float> mono = Mono(scritto.suono);
    for (double quando = 1; quando < scritto.fine - 2; quando += 2)
        EXPECT_GT(Picco(Parte(mono, quando, 2)), 0.01) << quando;
}

TEST(MelodiaAMano, WhatIsClickedWhileANoteSoundsIsNotLostAndComesAfterIt) {
    const CartellaProvvisoria cartella;
    PalcoMelodia p(cartella.Di(""));
    p.FermaDopo(0.1);
    p.Tocca("lb24", p.NelTasto("lb24"));
    p.Tocca("cmdInsNota");
    p.Tocca("cmdSimbNote1");
    p.Tocca("cmdInsPausa");
    p.Tocca("cmdSimbNote3");
    p.Tocca("cmdAttrNota0");
    p.ToccaDueVolte("lb26", p.NelTasto("lb26"));
    EXPECT_EQ(p.Dice("LblNoteString"), "");
    p.Prosegui();
    p.SalvaConNome("hasty");
    EXPECT_EQ(LeggiMel(Contenuto(cartella.Di("hasty.mel")), '.').soprano,
              (TestiVoce{"60;00;62;", "1;2;0.75;", "n;p;n;"}));
}

}  // namespace
}  // namespace corvana::prova
