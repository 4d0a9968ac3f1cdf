// What the melody window sets up as it opens.
#include <gtest/gtest.h>

#include "tests/composer/composer_rig.h"
#include "tests/support/open_window.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

constexpr std::int32_t violino = 40;
constexpr Colore coloreProprio = Rgb(1, 2, 3);

/// The window before it is opened.
struct BancoApertura : Banco {
    frmComposer finestra{Tutto(), {[] { return "Piano"; }, [] { return "Organ"; }, {}}};
    Melodia& melodia = finestra.stato.melodia;
    StatoInserimento& inserimento = finestra.stato.inserimento;

    BancoApertura() { suono.ApriMidi(-1); }
    void Apri() { ApriSenzaCiclo(finestre, pompa, coda, finestra); }
    void ApriCon(const std::string& ultimaCartella) {
        impostazioni.ScriviValore("LastDir", ultimaCartella);
        Apri();
    }
    void PonLingua(const std::string& righe) {
        globali.PercorsoLingua = "/programma/texts.csv";
        file.contenuti[globali.PercorsoLingua] = righe;
    }
    void SporcaEditing() {
        inserimento.figuraAttiva = 4;
        inserimento.attributoAttivo = 3;
        inserimento.letteraAttributo = "s";
        inserimento.valoreFigura = inserimento.valoreNota = 7;
        inserimento.notaAttiva = 80;
        melodia.tempo = 99;
        inserimento.contaTerzina = 2;
        finestra.tasti.tastoCorrente = 5;
    }
    void SporcaMelodia() {
        for (VoceMelodia& voce : melodia.voci)
            voce.testoNote = "60;", voce.primaNota = 3, voce.ultimaNota = 4;
        melodia.voceAttiva = "basso";
        melodia.semitoni = 5;
        finestra.voci.lblNini.Text = "9";
        finestra.voci.lblNfineB.Text = "9";
        finestra.stato.lblNt.Caption = "9";
    }
};

void EscePulsiIniziali(const frmComposer& f) {
    EXPECT_EQ(f.pulsi.Pulsazioni.Text(), "2");
    EXPECT_EQ(f.pulsi.DurataPulsazioni.Text(), "4");
    EXPECT_EQ(f.pulsi.battuta.pattern, "ab");
    EXPECT_EQ(f.pulsi.battuta.durataPulso, 1);
    EXPECT_EQ(f.pulsi.battuta.ultimoPulso, 1);
    EXPECT_EQ(f.pulsi.battuta.pulsoIniziale, 0);
    EXPECT_FALSE(f.pulsi.battuta.metroAttivo);
}

}  // namespace

TEST(AvvioComposer, TheTextsOfTheLanguageFileComeFirstAndTheCaptionsOfTheOtherEntriesAfterThem) {
    BancoApertura b;
    b.PonLingua(
        "245;frmComposer;Melodies\r\n264;frmComposer;Play later\r\n"
        "351;frmComposer;Remove\r\n356;frmComposer;All of it\r\n245;frmMetro;Other\r\n");
    b.Apri();
    EXPECT_EQ(b.finestra.Caption(), "Melodies");
    EXPECT_EQ(b.finestra.menu.mnuPlayRitardo.Caption(), "Play later");
    EXPECT_EQ(b.finestra.riferimenti.cmdDelBm.Caption(), "Remove");
    EXPECT_EQ(b.finestra.archivio.cmdDelete.Caption(), "Remove");
    EXPECT_EQ(b.globali.testi.TxtMelodiaIntera, "All of it");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(AvvioComposer, WithoutALanguageFileTheWindowKeepsItsOwnTexts) {
    BancoApertura b;
    b.globali.PercorsoLingua = "/programma/none.csv";
    b.Apri();
    EXPECT_EQ(b.finestra.Caption(), "Composizione melodie e armonie");
    EXPECT_EQ(b.finestra.archivio.cmdDelete.Caption(), "Elimina");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(AvvioComposer, TheInstrumentEntriesOfBothMenusReadAsThoseOfTheMainWindow) {
    BancoApertura b;
    b.Apri();
    EXPECT_EQ(b.finestra.menu.mnuPiano.Caption(), "Piano");
    EXPECT_EQ(b.finestra.menu.mnuPianoCont.Caption(), "Piano");
    EXPECT_EQ(b.finestra.menu.mnuOrgano.Caption(), "Organ");
    EXPECT_EQ(b.finestra.menu.mnuOrganoCont.Caption(), "Organ");
}

TEST(AvvioComposer, TheProgramKnowsThatTheWindowIsOpen) {
    BancoApertura b;
    EXPECT_FALSE(b.globali.ComposerAperto);
    b.Apri();
    EXPECT_TRUE(b.globali.ComposerAperto);
}

TEST(AvvioComposer, TheCursorStandsOnRow19ByTheNote60) {
    BancoApertura b;
    b.finestra.regolo.rigaCursore = 3;
    b.finestra.regolo.notaCursore = 90;
    b.SporcaEditing();
    b.Apri();
    EXPECT_EQ(b.finestra.regolo.rigaCursore, 19);
    EXPECT_EQ(b.finestra.regolo.notaCursore, 60);
    EXPECT_EQ(b.finestra.regolo.lblCursore.Top(), 1732);
    EXPECT_EQ(b.finestra.regolo.lblAccidente.Top(), 1732);
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "Do");
}

TEST(AvvioComposer, TheNameUnderTheCursorIsInTheNotationInUse) {
    BancoApertura b;
    b.globali.NomiAnglo = true;
    b.Apri();
    EXPECT_EQ(b.finestra.stato.lblActNote.Caption(), "C");
}

TEST(AvvioComposer, AFirstStartWithNoLastDirOpensTheDemoFolderBesideTheProgram) {
    BancoApertura b;
    b.Apri();
    EXPECT_EQ(b.globali.percorsoCorrente, "/programma/Melodie/Demo/");
}

TEST(AvvioComposer, LastDirIsTheCurrentFolderAndEndsWithItsSeparator) {
    for (const char* ultima : {"/home/mine/", "/home/mine"}) {
        BancoApertura b;
        b.ApriCon(ultima);
        EXPECT_EQ(b.globali.percorsoCorrente, "/home/mine/") << ultima;
    }
}

TEST(AvvioComposer, AnUnreadableLastDirCountsAsEmpty) {
    BancoApertura b;
    b.file.contenuti.clear();
    b.Apri();
    EXPECT_EQ(b.globali.percorsoCorrente, "/programma/Melodie/Demo/");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error1 Opening key: 2"});
}

TEST(AvvioComposer, AFolderInLastDirThatNoLongerExistsIsTakenWithoutAWord) {
    BancoApertura b;
    b.ApriCon("/gone/");
    EXPECT_EQ(b.globali.percorsoCorrente, "/gone/");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    b.finestra.archivio.mnuApri_Click();
    EXPECT_EQ(b.finestra.archivio.List1.List(), Righe{"» .."});
}

TEST(AvvioComposer, TheFirstNoteInsertedAtOnceIsDoCentraleAsAQuarterWithAttributeN) {
    BancoApertura b;
    b.SporcaEditing();
    b.Apri();
    EXPECT_EQ(b.inserimento.notaAttiva, 60);
    EXPECT_EQ(b.inserimento.figuraAttiva, 2);
    EXPECT_EQ(b.inserimento.valoreFigura, 1);
    EXPECT_EQ(b.inserimento.valoreNota, 1);
    EXPECT_EQ(b.inserimento.attributoAttivo, 6);
    EXPECT_EQ(b.inserimento.letteraAttributo, "n");
    EXPECT_EQ(b.inserimento.contaTerzina, 0);
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
}

TEST(AvvioComposer, OnlyTheFigureOfTheQuarterIsLit) {
    BancoApertura b;
    b.finestra.inserimento.cmdSimbNote[0].BackColor = coloreProprio;
    b.Apri();
    EXPECT_EQ(b.finestra.inserimento.ColoreSpento, coloreProprio);
    for (std::size_t i = 0; i < b.finestra.inserimento.cmdSimbNote.size(); ++i)
        EXPECT_EQ(b.finestra.inserimento.cmdSimbNote[i].BackColor() == Rgb(10, 254, 10), i == 2)
            << i;
}

TEST(AvvioComposer, TheTempoIs60AndNoKeyWasUsedYet) {
    BancoApertura b;
    b.SporcaEditing();
    b.Apri();
    EXPECT_EQ(b.melodia.tempo, 60);
    EXPECT_EQ(b.finestra.play.Velocità.Caption(), "60");
    EXPECT_EQ(b.finestra.tasti.tastoCorrente, 70);
}

TEST(AvvioComposer, AllVoicesAreEmptyAndTheSopranoIsTheActiveOne) {
    BancoApertura b;
    b.SporcaMelodia();
    b.Apri();
    for (const VoceMelodia& voce : b.melodia.voci) {
        EXPECT_TRUE(voce.Vuota());
        EXPECT_EQ(voce.primaNota, 0);
        EXPECT_EQ(voce.ultimaNota, 0);
    }
    EXPECT_EQ(b.finestra.voci.lblNini.Text(), "");
    EXPECT_EQ(b.finestra.voci.lblNfineB.Text(), "");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "");
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
}

TEST(AvvioComposer, AllFourVoicesTakeTheInstrumentInUseWhichIsSentOnTheirChannelsInOrder) {
    BancoApertura b;
    b.globali.StrumentoGlobale = violino;
    b.Apri();
    std::vector<std::uint32_t> inviati;
    for (const auto& voce : b.uscita.messaggi)
        inviati.push_back(voce.messaggio);
    EXPECT_EQ(inviati, (std::vector<std::uint32_t>{0x28C0, 0x28C1, 0x28C2, 0x28C3}));
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        EXPECT_EQ(b.melodia.voci[voce].strumento, violino);
        EXPECT_EQ(b.finestra.mix.lblInstr[voce].Caption(), "40-Violin");
    }
}

TEST(AvvioComposer, NoTranspositionWaits) {
    BancoApertura b;
    b.SporcaMelodia();
    b.finestra.trasposizione.lblSemitoni.Caption = "5";
    b.Apri();
    EXPECT_EQ(b.melodia.semitoni, 0);
    EXPECT_EQ(b.finestra.trasposizione.lblSemitoni.Caption(), "0");
}

TEST(AvvioComposer, TheMetronomeIsOffAndSetToTwoQuarters) {
    BancoApertura b;
    frmComposer& f = b.finestra;
    f.pulsi.battuta.pattern = "abbcb";
    f.pulsi.battuta.ultimoPulso = f.pulsi.battuta.pulsoIniziale = 3;
    f.pulsi.battuta.durataPulso = 4;
    f.pulsi.battuta.metroAttivo = true;
    f.pulsi.Pulsazioni.ListIndex = 0;
    f.pulsi.DurataPulsazioni.ListIndex = 0;
    b.Apri();
    EscePulsiIniziali(f);
}

TEST(AvvioComposer, TheGradientsArePaintedAndTheToolsTakeTheMainWindowsPictures) {
    Banco b;
    frmComposer finestra{b.Tutto(),
                         {[] { return ""; },
                          [] { return ""; },
                          {},
                          {},
                          [] { return "icona:strumenti"; },
                          [] { return "icona:promemoria"; }}};
    b.suono.ApriMidi(-1);
    ApriSenzaCiclo(b.finestre, b.pompa, b.coda, finestra);
    const Sfumatura& tasto = finestra.pictCi.Sfondo();
    EXPECT_EQ(tasto.inizio, Rgb(255, 143, 106));
    EXPECT_EQ(tasto.fine, Rgb(255, 255, 0));
    const Sfumatura& striscia = finestra.barra.ShToolbar.Sfondo();
    EXPECT_EQ(striscia.inizio, Rgb(154, 0, 223));
    EXPECT_EQ(striscia.fine, Rgb(255, 213, 255));
    EXPECT_EQ(finestra.barra.ToolButton[1].stile, "icona:strumenti");
    EXPECT_EQ(finestra.barra.ToolButton[5].stile, "icona:promemoria");
}

}  // namespace corvana::prova
