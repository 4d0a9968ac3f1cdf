#include "tests/eartrainer/careless_listener.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace corvana::prova {

namespace {

/// The Start button of each page, in the order of the pages.
constexpr std::array bottoniStart = {"IntoStart", "CmdIntStart", "ComdRacStart", "cmdRicTasto",
                                     "cmdT"};
/// What else is clicked on each page.
const std::array<std::vector<std::string>, 5> abitudini = {
    {{"lblRipInto", "lblIntoSh", "lblMod", "lblSolotb", "cmdReimposta", "cmdReimposta"},
     {"lblRipInt", "lblIntSh", "lblModo", "lblFv", "Il5", "Il13", "LblSemi4"},
     {"lblRipta", "lblVt", "cmdRes", "EsclTa0", "EsclTa3", "TipoAcc1"},
     {"lblSceltaTasti", "lblSceltaTasti"},
     {"lblRipeti", "lblTsh", "lblT(3)", "lblT(0)", "T5"}}};
constexpr std::array vociMenu = {"mnuNotA",   "mnuRint",     "mnuRicTa",    "mnuRicTasto",
                                 "mnuRicTo",  "mnuPiano",    "mnuOrgano",   "mnuSs",
                                 "mnuNotLat", "mnuNotAnglo", "ToolButton6", "cmdEsci"};

std::size_t PaginaDavanti(const frmInto& f) {
    const std::array<const Cornice*, 5> cornici = {&f.intonazione.frmInto2,
                                                   &f.intervalli.FrmIntervalli, &f.accordi.frmRacc,
                                                   &f.tasti.frmRicTasto, &f.tonalita.frmTo};
    for (std::size_t i = 0; i < cornici.size(); ++i)
        if (cornici.at(i)->Visible()) return i;
    return 0;
}

}  // namespace

double AscoltatoreDistratto::Pausa() {
    if (Capita(200)) return Tra(0, 50) / 1000.0;
    return Tra(0, Capita(900) ? 3000 : 20000) / 1000.0;
}

void AscoltatoreDistratto::Vivi() {
    while (rimasti_ > 0 && guasto.empty())
        Apri();
}

void AscoltatoreDistratto::Apri() {
    ++aperture;
    banco_ = std::make_unique<BancoInto>(chance_);
    BancoInto& b = *banco_;
    pazienza_ = 2000;
    if (Capita(20)) {
        b.globali.testi = {};
        // Without texts most pages can't be closed.
        pazienza_ = 200;
    }
    if (Capita(500)) b.PonStato("10;40;60;1;True;5");
    if (Capita(50)) b.PonStato("10;40;60");
    for (bool& bandiera : b.globali.PaginaInto)
        bandiera = Capita(250);
    b.globali.PaginaInto.at(static_cast<std::size_t>(Tra(0, pagineInto.size() - 1))) = true;
    b.Quando(0, [this] { Passo(); });
    bool chiusa = false;
    b.SvolgiCopione([&] {
        b.finestre.FinoAllUltima([&] {
            b.finestre.Mostra(b.principale);
            b.finestre.MostraModale(b.finestra);
            chiusa = true;
            throw FineCopione{};
        });
    });
    if (chiusa) ControllaChiusa();
    secondi += b.orologio.Adesso();
}

void AscoltatoreDistratto::Passo() {
    Controlla();
    if (rimasti_ <= 0 || --pazienza_ <= 0 || !guasto.empty()) throw FineCopione{};
    for (int i = Capita(150) ? Tra(2, 5) : 1; i > 0; --i)
        Agisci();
    banco_->Quando(banco_->orologio.Adesso() + Pausa(), [this] { Passo(); });
}

void AscoltatoreDistratto::Agisci() {
    --rimasti_;
    const Form* davanti = banco_->finestre.Davanti();
    if (davanti != &banco_->finestra) return;
    if (Capita(3)) banco_->uscita.esitoShortMsg = Capita(300) ? 67 : 0;
    if (Capita(120)) return Tasto();
    if (Capita(150)) return banco_->coda.Aggiungi(GestoQualunque());
    Evento e;
    if (Capita(25)) {
        e.fatto = Fatto::Chiudi;
        return banco_->coda.Aggiungi(banco_->Fatta(e, ""));
    }
    banco_->coda.Aggiungi(banco_->Fatta(e, PerAbitudine()));
}

std::string AscoltatoreDistratto::PerAbitudine() {
    const std::size_t pagina = PaginaDavanti(banco_->finestra);
    const int dado = Tra(0, 99);
    if (dado < 12) return bottoniStart.at(pagina);
    if (dado < 50) return RispostaGiusta();
    if (dado < 75) return "lb" + std::to_string(Tra(0, 59));
    if (dado < 83) return vociMenu.at(static_cast<std::size_t>(Tra(0, vociMenu.size() - 1)));
    const auto& cose = abitudini.at(pagina);
    return cose.at(static_cast<std::size_t>(Tra(0, static_cast<int>(cose.size()) - 1)));
}

std::string AscoltatoreDistratto::RispostaGiusta() {
    const frmInto& f = banco_->finestra;
    switch (PaginaDavanti(f)) {
        case 0: return "lb" + std::to_string(std::clamp<int>(banco_->into.IntoNota, 0, 59));
        case 1: return "LblSemi" + std::to_string(f.intervalli.IntSemitoni);
        case 2: return "TipoAcc" + std::to_string(banco_->into.AccTipo);
        case 3: return "lb" + std::to_string(std::clamp<int>(f.telaio.NotaRif - 36, 0, 59));
        default: return "T" + std::to_string(f.tonalita.ToIndice);
    }
}

Evento AscoltatoreDistratto::GestoQualunque() {
    Evento e;
    const auto& controlli = banco_->finestra.Controlli();
    e.finestra = banco_->finestra.Identita();
    e.controllo = Tra(1, static_cast<int>(controlli.size()) - 1);
    e.fatto = std::array{Fatto::Click,   Fatto::DblClick, Fatto::MouseDown,
                         Fatto::MouseUp, Fatto::Change,   Fatto::MouseMove}
                  .at(static_cast<std::size_t>(Tra(0, 5)));
    e.codice = bottoneSinistro;
    e.valore = Tra(30, 100);
    return e;
}

void AscoltatoreDistratto::Tasto() {
    constexpr std::array tasti = {90, 83, 81, 80, 188, 76, 190, 192, 189, 186, 221, 187, 8, 27};
    Evento e;
    e.fatto = Capita(500) ? Fatto::KeyDown : Fatto::KeyUp;
    if (Capita(50)) e.fatto = Fatto::FuocoPerso;
    e.codice = tasti.at(static_cast<std::size_t>(Tra(0, tasti.size() - 1)));
    banco_->coda.Aggiungi(banco_->Fatta(e, ""));
}

void AscoltatoreDistratto::Esigi(bool vero, const std::string& cosa) {
    if (!vero && guasto.empty())
        guasto = cosa + ", with " + std::to_string(rimasti_) + " events to go";
}

/// Holds whenever the logic waits.
void AscoltatoreDistratto::Controlla() {
    const BancoInto& b = *banco_;
    const frmInto& f = b.finestra;
    for (const char* nome : bottoniStart) {
        const std::string testo = b.Testo(nome);
        Esigi(testo == "Start" || testo == "Stop", std::string("the caption of ") + nome);
        in[nome] += testo == "Stop" ? 1 : 0;
    }
    Esigi(!f.telaio.IntInCorso || b.Testo("CmdIntStart") == "Stop", "a run without its Stop");
    const std::int16_t nota = b.into.IntoNota;
    Esigi(nota >= 0 && nota <= 59, "a note without a key was asked");
    ControllaPunti();
    for (const std::string& testo : b.riquadri.messaggi)
        Esigi(testo.empty() || testo.starts_with("Operation:") || testo.starts_with("9\r\n") ||
                  std::isalpha(static_cast<unsigned char>(testo.front())),
              "a box: " + testo);
    banco_->riquadri.messaggi.clear();
    if (banco_->uscita.NoteAccese().empty()) banco_->uscita.messaggi.clear();
}

void AscoltatoreDistratto::ControllaPunti() {
    const PunteggioInto& punti = banco_->finestra.telaio.punti;
    const long giuste = NumeroIntero(punti.txtResatte.Caption(), 0, 32767);
    const long sbagliate = NumeroIntero(punti.txtRerrate.Caption(), 0, 32767);
    esatte += giuste > 0 ? 1 : 0;
    Esigi(punti.lblPerc.Caption() ==
              (giuste + sbagliate ? Percento(giuste, giuste + sbagliate) : "0"),
          "the percentage");
    Esigi(!punti.lblOk.Visible() || !punti.lblKo.Visible(), "right and wrong at once");
}

void AscoltatoreDistratto::ControllaChiusa() {
    ++chiuse;
    Controlla();
    Esigi(!banco_->globali.IntoAperto, "closed it says that it is open");
    Esigi(banco_->uscita.NoteAccese().empty(), "a note was left sounding");
}

}  // namespace corvana::prova
