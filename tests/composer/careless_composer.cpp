#include "tests/composer/careless_composer.h"

#include <algorithm>

namespace corvana::prova {

namespace {

/// The longest note that he enters takes less than a minute.
constexpr double attesaQuieta = 150;

constexpr std::array<const char*, 36> abitudiniComposer = {
    "cmdPlay",     "cmdPlay",     "cmdPlay",     "cmdInsNota",  "cmdInsNota",  "cmdInsPausa",
    "VoceAttiva0", "VoceAttiva1", "VoceAttiva3", "lblMuteC0",   "lblMuteC2",   "lblVolT",
    "lblIDs0",     "lblIDs1",     "lblIDs1",     "lblSemitoni", "lblTs",       "mnuPiano",
    "cmdReset",    "lblStep0",    "lblStep1",    "cmdNpp",      "mnuNotAnglo", "cmdCanc",
    "cmdPaste",    "cmdPaste",    "lblIncolla",  "cmdAddBm",    "cmdAddBm",    "cmdPlayBm",
    "cmdModBm",    "cmdRenameBm", "cmdMbUd0",    "cmdMbUd1",    "cmdDelBm",    "cmdHideBm"};

constexpr std::array<const char*, 6> nomiRiferimenti = {"a", "", "a;b", "÷", "ritornello", "x y z"};

constexpr std::array<int, 20> tastiComposer = {'Z', 'X', 'P', '5', 188, 76,  8,   37,  38,  39,
                                               40,  115, 116, 117, 118, 119, 120, 122, 123, 65};

bool Parallela(const VoceMelodia& voce) {
    const auto token = [](const std::string& testo) {
        return std::count(testo.begin(), testo.end(), ';');
    };
    return token(voce.testoNote) == token(voce.testoDurate) &&
           token(voce.testoNote) == token(voce.testoAttributi);
}

}  // namespace

double CompositoreDistratto::Pausa() {
    if (Capita(400)) return Tra(0, 30) / 1000.0;
    return Tra(0, Capita(900) ? 900 : 8000) / 1000.0;
}

void CompositoreDistratto::Vivi() {
    while (rimasti_ > 0 && guasto.empty())
        Apri();
}

void CompositoreDistratto::Apri() {
    banco_ = std::make_unique<Palco>();
    Palco& b = *banco_;
    PonDisco(b);
    b.suono.ApriMidi(-1);
    b.Quando(0.1, [this] {
        PonMelodia();
        Passo();
    });
    const bool svolta = b.SvolgiCopione([&b] { b.finestre.MostraModale(b.finestra); });
    if (!svolta) ControllaChiusa();
    secondi += b.orologio.Adesso();
}

void CompositoreDistratto::PonMelodia() {
    PannelloVoci& voci = banco_->finestra.voci;
    Melodia& melodia = banco_->finestra.stato.melodia;
    for (std::size_t voce = numeroVoci; voce-- > 0;) {
        VoceMelodia& v = melodia.voci[voce];
        for (int note = Capita(800) ? Tra(1, 20) : 0; note > 0; --note) {
            v.testoNote += std::to_string(Tra(38, 94)) + ";";
            v.testoDurate += Capita(500) ? "1;" : "0.25;";
            v.testoAttributi += "n;";
        }
        melodia.voceAttiva = nomiVoci[voce];
        voci.AggiornaVoce();
        voci.MostraNoteVoce();
    }
}

void CompositoreDistratto::Passo() {
    Controlla();
    if (rimasti_ <= 0 || !guasto.empty()) throw FineCopione{};
    const double adesso = banco_->orologio.Adesso();
    if (Capita(15)) {
        Quieto();
        return banco_->Quando(adesso + attesaQuieta, [this] {
            ControllaQuieto();
            Passo();
        });
    }
    // A note that is heard holds the window up: what he does meanwhile waits, and not much of it.
    if (banco_->coda.Vuota() || Capita(50))
        for (int i = Capita(200) ? Tra(2, 5) : 1; i > 0; --i)
            Agisci();
    banco_->Quando(adesso + Pausa(), [this] { Passo(); });
}

void CompositoreDistratto::Agisci() {
    --rimasti_;
    if (!banco_->finestre.Davanti()) return;
    // He has nothing to import.
    if (banco_->finestre.Davanti() != &banco_->finestra) return Manda({}, "cmdChiudi");
    banco_->riquadri.risposte = {Capita(700)};
    banco_->riquadri.testi = {nomiRiferimenti.at(static_cast<std::size_t>(Tra(0, 5)))};
    const int dado = Tra(0, 99);
    if (dado < 28)
        Mouse();
    else if (dado < 56)
        Tasto();
    else if (dado < 79)
        Abitudine();
    else if (dado < 88)
        Archivio();
    else if (dado < 99)
        Qualunque();
    else
        Manda({.fatto = Fatto::Chiudi}, "");
}

/// Presses on an arrow, or on a key, and releases anywhere; at times neither comes to its end.
void CompositoreDistratto::Mouse() {
    Evento e;
    e.fatto = std::array{Fatto::MouseDown, Fatto::MouseUp, Fatto::MouseDown,
                         Fatto::DblClick,  Fatto::MouseUp, Fatto::MouseUp}
                  .at(static_cast<std::size_t>(Tra(0, 5)));
    e.codice = Capita(800) ? bottoneSinistro : bottoneDestro;
    const std::string dove =
        Capita(700) ? "lblid" + std::to_string(Tra(0, 15)) : "lb" + std::to_string(Tra(0, 59));
    Manda(e, dove);
}

void CompositoreDistratto::Tasto() {
    Evento e;
    e.fatto = Capita(500) ? Fatto::KeyDown : Fatto::KeyUp;
    if (Capita(40)) e.fatto = Fatto::FuocoPerso;
    e.codice = tastiComposer.at(static_cast<std::size_t>(Tra(0, tastiComposer.size() - 1)));
    e.ripetuto = Capita(200);
    Manda(e, "");
}

void CompositoreDistratto::Abitudine() {
    Evento e;
    e.fatto = Fatto::Click;
    if (Capita(100)) {
        e.fatto = Fatto::Change;
        e.valore = Tra(20, 250);
        return Manda(e, "Slider1");
    }
    Manda(e, abitudiniComposer.at(
                 static_cast<std::size_t>(Tra(0, static_cast<int>(abitudiniComposer.size()) - 1))));
}

void CompositoreDistratto::Archivio() {
    const auto tra = [this](int basso, int alto) { return Tra(basso, alto); };
    CambiaDisco(banco_->file, tra);
    banco_->riquadri.testi = {NomeScritto(tra)};
    const auto [controllo, gesto] = GestoDiArchivio(tra);
    Manda(gesto, controllo);
}

void CompositoreDistratto::Qualunque() {
    const auto& controlli = banco_->finestra.Controlli();
    const Controllo& c =
        *controlli.at(static_cast<std::size_t>(Tra(1, static_cast<int>(controlli.size()) - 1)));
    Evento e;
    e.fatto = std::array{Fatto::Click,     Fatto::MouseDown, Fatto::MouseUp,
                         Fatto::MouseMove, Fatto::Change,    Fatto::LostFocus}
                  .at(static_cast<std::size_t>(Tra(0, 5)));
    e.codice = bottoneSinistro;
    e.valore = Tra(0, 12);
    e.testo = std::to_string(Tra(0, 3));
    Manda(e, c.Name);
}

void CompositoreDistratto::Quieto() {
    if (!banco_->finestre.Davanti()) return;
    for (const int bottone : {bottoneSinistro, bottoneDestro})
        Manda({.fatto = Fatto::MouseUp, .codice = bottone}, "");
    for (const int codice : tastiComposer)
        Manda({.fatto = Fatto::KeyUp, .codice = codice}, "");
}

void CompositoreDistratto::Manda(Evento evento, const std::string& controllo) {
    banco_->coda.Aggiungi(banco_->Fatta(std::move(evento), controllo));
}

void CompositoreDistratto::Esigi(bool vero, const std::string& cosa) {
    if (!vero && guasto.empty())
        guasto = cosa + ", with " + std::to_string(rimasti_) + " events to go";
}

/// Holds whenever the logic waits.
void CompositoreDistratto::Controlla() {
    const frmComposer& f = banco_->finestra;
    play += f.stato.inEsecuzione;
    prese += f.tratti.passoInCorso;
    Esigi(f.play.cmdPlay.Caption() == (f.stato.inEsecuzione ? "Stop" : "Play"),
          "the caption of Play");
    Esigi(f.regolo.notaCursore >= 36 && f.regolo.notaCursore <= 95 && f.regolo.rigaCursore >= -1 &&
              f.regolo.rigaCursore <= 33,
          "the cursor is off the ruler");
    Esigi(std::abs(f.stato.melodia.semitoni) <= 12, "the semitones");
    Esigi(f.riferimenti.lstBookMark.List->size() != 1, "the whole melody's bookmark alone");
    Esigi(std::all_of(f.stato.melodia.voci.begin(), f.stato.melodia.voci.end(), Parallela),
          "the texts of a voice have parted");
    riferimenti += f.riferimenti.lstBookMark.List->size() > 2;
    incolla += f.incolla.lblIncolla.Visible();
    ControllaArchivio();
    for (const std::string& testo : banco_->riquadri.messaggi) {
        trasporti += testo == "\n";
        Esigi(!testo.starts_with("51"), "a box: " + testo);
    }
    banco_->riquadri.messaggi.clear();
    if (banco_->uscita.NoteAccese().empty()) banco_->uscita.messaggi.clear();
}

void CompositoreDistratto::ControllaArchivio() {
    const std::string difetto = DifettoArchivio(*banco_, banco_->finestra);
    Esigi(difetto.empty(), difetto);
    std::set<std::string> nomi = banco_->file.cartelle;
    for (const auto& [nome, byte] : banco_->file.contenuti)
        nomi.insert(nome);
    for (const std::string& nome : nomi)
        nati += !banco_->nomi.contains(nome);
    for (const std::string& nome : banco_->nomi)
        morti += !nomi.contains(nome);
    caricate += !banco_->finestra.stato.melodia.nomeMelodia.empty();
    banco_->nomi = std::move(nomi);
}

/// He holds nothing, and nothing goes on by itself but a play.
void CompositoreDistratto::ControllaQuieto() {
    const frmComposer& f = banco_->finestra;
    Esigi(!f.tratti.passoInCorso, "a hold has outlived its button");
    if (f.stato.inEsecuzione) return;
    ++quieti;
    Esigi(banco_->uscita.NoteAccese().empty(), "a note was left sounding");
    Esigi(std::none_of(f.tasti.lb.begin(), f.tasti.lb.end(),
                       [](const Etichetta& tasto) { return tasto.BackStyle() == fondoOpaco; }),
          "a key was left lit");
}

void CompositoreDistratto::ControllaChiusa() {
    ++chiuse;
    Esigi(!banco_->finestra.tratti.passoInCorso, "a hold has outlived its window");
    Esigi(!banco_->finestra.stato.inEsecuzione, "it plays without a window");
    Esigi(banco_->uscita.NoteAccese().empty(), "closed it still sounds");
    Esigi(!banco_->globali.ComposerAperto, "closed it says that it is open");
}

}  // namespace corvana::prova
