#include "tests/composer/careless_player.h"

#include <algorithm>
#include <array>

#include "composer/play_panel.h"
#include "tests/composer/careless_editing.h"

namespace corvana::prova {

namespace {

constexpr int quantiFile = 6;

/// What is done to a control, with a value of that range, so many times of a hundred.
struct Abitudine {
    int suCento;
    const char* controllo;
    Fatto fatto;
    int minimo = 0;
    int massimo = 0;
};

/// The label of the name stands for the button that empties the melody.
constexpr std::array<Abitudine, 28> abitudini = {
    {{17, "cmdPlay", Fatto::Click},          {9, "List1", Fatto::Click, -1, quantiFile + 2},
     {9, "cmdEseguiFile", Fatto::Click},     {2, "lblNome", Fatto::Click},
     {3, "VoceAttiva0", Fatto::Click},       {3, "VoceAttiva1", Fatto::Click},
     {1, "VoceAttiva3", Fatto::Click},       {3, "VolS", Fatto::Change, -1, 99},
     {3, "VolC", Fatto::Scroll, 0, 98},      {2, "VolT", Fatto::Change, 0, 98},
     {2, "VolB", Fatto::Change, 98, 98},     {6, "lblTs", Fatto::Click},
     {4, "Pulsazioni", Fatto::Click, -1, 9}, {3, "DurataPulsazioni", Fatto::Click, -1, 5},
     {4, "InizioPuls", Fatto::Change, 0, 9}, {2, "VolumeMetro", Fatto::Change, 0, 120},
     {5, "chekLoop", Fatto::Click, 0, 1},    {2, "chekLoop", Fatto::Click, 0, 0},
     {1, "mnuPlayRitardo", Fatto::Click},    {3, "mnuApri", Fatto::Click},
     {3, "mnuSalva", Fatto::Click},          {2, "mnuSaveAs", Fatto::Click},
     {1, "mnuSalvaA", Fatto::Click},         {1, "mnuCopyFromA", Fatto::Click},
     {4, "Slider1", Fatto::Change, 19, 251}, {2, "Slider1", Fatto::Scroll, 20, 250},
     {2, "lblNini", Fatto::Change},          {1, "", Fatto::Chiudi}}};

}  // namespace

int SuonatoreDistratto::Tra(int basso, int alto) {
    return std::uniform_int_distribution(basso, alto)(generatore_);
}

/// Often within the tick, or a few of them; at times long enough for a melody to end.
double SuonatoreDistratto::Pausa() {
    if (Capita(300)) return Tra(0, 30) / 1000.0;
    if (Capita(800)) return Tra(0, 2000) / 1000.0;
    return Tra(0, 40);
}

void SuonatoreDistratto::Vivi() {
    while (rimasti_ > 0 && guasto.empty())
        Apri();
}

void SuonatoreDistratto::Apri() {
    ++aperture;
    banco_ = std::make_unique<BancoComposer>();
    inceppata_ = aPassi_ = false;
    redige_ = Capita(500);
    BancoComposer& b = *banco_;
    b.finestra.stato.lblNome.Click = [&b] { b.finestra.cmdReset_Click(); };
    PonFile();
    b.finestra.archivio.mnuApri_Click();
    b.Quando(Pausa(), [this] { Passo(); });
    b.SvolgiCopione([&] {
        while (b.finestre.Davanti() && guasto.empty()) {
            b.pompa.AttendiEvento(perSempre);
            ControllaFermo();
        }
    });
    secondi += b.orologio.Adesso();
    salvate += b.file.scritture;
}

/// Melodies as an editor makes them, and others that were edited by hand or cut off.
void SuonatoreDistratto::PonFile() {
    for (int i = 0; i < quantiFile; ++i) {
        std::string byte = MelodiaACaso();
        // A file that was cut off and then edited can hold numbers that no message can.
        if (i == 0 && !redige_)
            byte.resize(static_cast<std::size_t>(Tra(0, static_cast<int>(byte.size()))));
        banco_->PonFile("melody" + std::to_string(i), byte);
    }
    banco_->file.supportoRimovibile = Capita(500) ? "/medium/" : "";
    for (int i = Capita(100) ? 300 : Tra(0, 10); i > 0; --i)
        banco_->file.contenuti["/medium/melody" + std::to_string(i) + ".mel"] = MelodiaACaso();
}

/// The three lines of a voice.
std::string SuonatoreDistratto::VoceACaso(bool strana) {
    constexpr std::array durate = {"1", "0.5", "0,25", "0.03125", "1.5", "0.333333333333333", "4"};
    constexpr std::array attributi = {"n", "n", "a", "s", "t", "p"};
    std::array<std::string, 3> righe;
    for (int note = Tra(1, 30); note > 0; --note) {
        const bool errore = strana && Capita(10);
        righe[0] += errore ? "x;" : std::to_string(strana ? Tra(0, 127) : Tra(36, 95)) + ";";
        righe[1] +=
            std::string(strana && Capita(50) ? "0" : durate.at(std::size_t(Tra(0, 6)))) + ";";
        righe[2] +=
            std::string(strana && Capita(200) ? "?" : attributi.at(std::size_t(Tra(0, 5)))) + ";";
    }
    return righe[0] + "\r\n" + righe[1] + "\r\n" + righe[2] + "\r\n";
}

std::string SuonatoreDistratto::MelodiaACaso() {
    const bool strana = !redige_ && Capita(400);
    std::string byte = VoceACaso(strana) + " " + std::to_string(Tra(20, 250)) + " \r\n";
    byte += Capita(500) ? " 16 \r\n" : "0;" + std::to_string(Tra(1, 9)) + ";8;1\r\n";
    for (const char* voce : {"contralto", "tenore", "basso"})
        if (Capita(500)) byte += std::string(voce) + ";16\r\n" + VoceACaso(strana);
    return byte;
}

void SuonatoreDistratto::Passo() {
    Controlla();
    if (rimasti_ <= 0 || !guasto.empty()) throw FineCopione{};
    // Now and then several things at one instant, as when the window was slow to answer.
    for (int i = Capita(200) ? Tra(2, 5) : 1; i > 0; --i)
        Agisci();
    banco_->Quando(banco_->orologio.Adesso() + Pausa(), [this] { Passo(); });
}

void SuonatoreDistratto::Agisci() {
    --rimasti_;
    if (Capita(3)) Inceppa();
    banco_->riquadri.risposte = {Capita(500)};
    banco_->riquadri.testi = {Capita(800) ? "melody" + std::to_string(Tra(0, quantiFile)) : "?"};
    if (!banco_->finestre.Davanti()) return;
    if (banco_->finestre.Davanti() != &banco_->finestra) return Importa();
    const auto [controllo, evento] = Gesto();
    Evento e = banco_->Fatta(evento, controllo);
    if (Capita(30)) e.controllo = Tra(0, static_cast<int>(banco_->finestra.Controlli().size()) - 1);
    if (e.fatto == Fatto::Click && controllo == "cmdEseguiFile") ++caricate;
    const auto& controlli = banco_->finestra.Controlli();
    aPassi_ = aPassi_ || controlli[std::size_t(e.controllo)]->Name.starts_with("lblStep");
    banco_->coda.Aggiungi(std::move(e));
}

void SuonatoreDistratto::Importa() {
    ++importi;
    Evento e;
    const int dado = Tra(0, 9);
    e.fatto = dado == 0 ? Fatto::Chiudi : dado < 3 ? Fatto::DblClick : Fatto::Click;
    e.valore = Tra(-1, 300);
    for (int riga = Tra(0, 5); riga > 0; --riga)
        e.scelte.push_back(Tra(-1, 300));
    constexpr std::array dove = {"",         "List1",    "List1",       "List1",    "List1",
                                 "cmdCopia", "cmdCopia", "lblCurrPath", "cmdCopia", "cmdChiudi"};
    banco_->coda.Aggiungi(banco_->Fatta(std::move(e), dove.at(static_cast<std::size_t>(dado))));
}

/// The output or the files fail or recover.
void SuonatoreDistratto::Inceppa() {
    banco_->uscita.esitoShortMsg = Capita(100) ? 67 : 0;
    inceppata_ = inceppata_ || banco_->uscita.esitoShortMsg != 0;
    banco_->file.erroreScrivi = Capita(200) ? ENOSPC : 0;
    banco_->file.erroreElenca = Capita(100) ? EIO : 0;
    banco_->globali.PickerAperto = Capita(100);
}

std::pair<std::string, Evento> SuonatoreDistratto::Gesto() {
    if (redige_ && Capita(600))
        return GestoDiRedazione([this](int basso, int alto) { return Tra(basso, alto); });
    int dado = Tra(0, 99);
    const auto* scelta = abitudini.begin();
    while (dado >= scelta->suCento && scelta + 1 != abitudini.end())
        dado -= (scelta++)->suCento;
    Evento e;
    e.fatto = scelta->fatto;
    e.valore = Tra(scelta->minimo, scelta->massimo);
    e.testo = std::to_string(Tra(0, 40));
    return {scelta->controllo, e};
}

void SuonatoreDistratto::Esigi(bool vero, const std::string& cosa) {
    if (!vero && guasto.empty())
        guasto = cosa + ", with " + std::to_string(rimasti_) + " events to go";
}

/// Holds between any two ticks.
void SuonatoreDistratto::Controlla() {
    const frmComposer& f = banco_->finestra;
    play += f.stato.inEsecuzione;
    Esigi(f.play.cmdPlay.Caption() == (f.stato.inEsecuzione ? "Stop" : "Play"),
          "the caption is wrong");
    Esigi(!f.stato.inEsecuzione || banco_->finestre.Davanti(), "it plays without a window");
    Esigi(f.play.Cursore.Left() >= sinistraRigaCur &&
              f.play.Cursore.Left() <= sinistraRigaCur + corsaCursore,
          "the cursor is off its line");
    Esigi(f.stato.melodia.tempo >= tempoMinimo && f.stato.melodia.tempo <= tempoMassimo,
          "the tempo is odd");
    for (const std::string& testo : banco_->riquadri.messaggi)
        Esigi(!testo.starts_with("51"), "a box: " + testo);
    banco_->riquadri.messaggi.clear();
    // A long run makes millions of them.
    if (!f.stato.inEsecuzione && banco_->uscita.NoteAccese().empty())
        banco_->uscita.messaggi.clear();
}

/// Holds when no handler is under way.
void SuonatoreDistratto::ControllaFermo() {
    ++fermo;
    const frmComposer& f = banco_->finestra;
    Esigi(!f.stato.inEsecuzione, "something plays");
    Esigi(inceppata_ || banco_->uscita.NoteAccese().empty(), "a note was left sounding");
    Esigi(std::none_of(f.tasti.lb.begin(), f.tasti.lb.end(),
                       [](const Etichetta& tasto) { return tasto.BackStyle() == fondoOpaco; }),
          "a key was left lit");
    Esigi(std::none_of(f.play.Secondo.begin(), f.play.Secondo.end(),
                       [](const Figura& luce) { return luce.Visible(); }),
          "a light was left on");
    Esigi(f.menu.file.Enabled() && f.inserimento.cmdInsNota.Enabled() &&
              f.inserimento.cmdInsPausa.Enabled() && (aPassi_ || f.modifica.cmdCanc.Enabled()) &&
              (f.riferimenti.cmdAddBm.Enabled() || f.stato.melodia.voceAttiva != "soprano"),
          "a command was left disabled");
    Esigi(
        std::none_of(f.voci.perVoce.begin(), f.voci.perVoce.end(),
                     [](const auto& voce) { return voce.prima.Locked() || voce.ultima.Locked(); }),
        "a box was left locked");
    Controlla();
}

}  // namespace corvana::prova
