#include "tests/program/faulty_evening.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "composer/composer.h"
#include "composer/copy_from_a.h"
#include "core/real_guardian.h"
#include "melody/kept_melody.h"
#include "melody/mel_reader.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

constexpr const char* percorsoTenuta = "/stato/corvana/unsaved-melody";
constexpr const char* percorsoStato = "/config/settings";
constexpr const char* cartellaSupporto = "/media/stick/";
constexpr double traIPassi = 20;  // a short melody plays meanwhile

/// Does at once what the real one does some time later, on its own thread all the same.
class CustodeSubito final : public Custode {
public:
    explicit CustodeSubito(std::unique_ptr<ArchivioFile> file)
        : vero_(std::move(file), percorsoTenuta, {piuTardi, pazienza}) {}

    void Tieni(std::function<std::string()> byte) override {
        vero_.Tieni(std::move(byte));
        vero_.Fissa();
    }
    void Lascia() override {
        vero_.Lascia();
        vero_.Fissa();
    }
    void Fissa() override { vero_.Fissa(); }
    int Ritrova(std::string& byte) override { return vero_.Ritrova(byte); }
    std::string MettiDaParte() override { return vero_.MettiDaParte(); }

private:
    static constexpr double piuTardi = 1e6, pazienza = 60;
    CustodeReale vero_;
};

/// The disk took no copy of it: the program's own memory was all there was.
bool MaiTenuta(const RegistroFile& registro) {
    return std::any_of(registro.chiamate.begin(), registro.chiamate.end(), [](const auto& c) {
        return c.fallita && c.operazione != Operazione::Leggi && c.percorso.starts_with("/stato");
    });
}

std::string Lingua() {
    std::string righe;
    for (const char* riga :
         {"0;CorvanaMainF;Corvana", "75;frmMidiTest;Uscite", "80;frmComposer;Melodie",
          "90;frmCopyFromA;Copia", "95;frmStrum;Strumenti", "182;frmInto;Scegli",
          "217;frmInto;Premi", "97;frmOptions;Promemoria", "98;frmAbout;Versione",
          "99;frmConfMetro;Sequenza"})
        righe.append(riga).append("\n");
    return righe;
}

}  // namespace

/// The program from its start to its end.
class SeraConGuasti::Sessione : public Banco {
public:
    Sessione(SeraConGuasti& sera, const std::string& inizio)
        : sera_(sera), memoria_(sera.disco_), registro_(sera.registro_) {
        globali.CartellaUtente = "/home/u/";
        globali.CartellaDocumenti = "/home/u/Doc/";
        registro_->passo = inizio;
        archivioStato_.Prepara();
    }

    /// Clicks the control of the window in front, with these answers to what it asks.
    void Passo(const std::string& nome, const std::string& controllo, bool si = false,
               const std::optional<std::string>& testo = {}) {
        Quando(ora_ += traIPassi, [=, this] {
            Inizia(nome);
            riquadri.risposte = {si};
            riquadri.testi = {testo};
            Evento e;
            e.fatto = Fatto::Click;
            const Form* davanti = finestre.Davanti();
            if (davanti && davanti->Trova(controllo))
                coda.Aggiungi(Fatta(e, controllo));
            else
                sera_.Difetto("no " + controllo + (davanti ? " in " + davanti->Name : ""));
        });
    }
    /// The same with the list's row of that text.
    void SullaRiga(const std::string& riga, const std::string& nome, const std::string& controllo,
                   bool si = false, const std::optional<std::string>& testo = {}) {
        Quando(ora_ += traIPassi, [=, this] {
            if (frmComposer* f = Composer()) {
                const Righe& righe = f->archivio.List1.List();
                const auto trovata = std::find(righe.begin(), righe.end(), riga);
                f->archivio.List1.ListIndex =
                    trovata == righe.end() ? -1 : static_cast<int>(trovata - righe.begin());
            }
        });
        Passo(nome, controllo, si, testo);
    }
    void Poi(const std::string& nome, const std::function<void()>& cosa) {
        Quando(ora_ += traIPassi, [=, this] {
            Inizia(nome);
            cosa();
        });
    }
    void Chiudi() {
        Quando(ora_ += traIPassi, [this] {
            Inizia("closing " + finestre.Davanti()->Name);
            Evento e;
            e.fatto = Fatto::Chiudi;
            coda.Aggiungi(Fatta(e, ""));
        });
    }
    void Entra(const std::string& cartella) {
        Quando(ora_ += traIPassi, [=, this] {
            globali.percorsoCorrente = cartella;
            if (frmComposer* f = Composer()) f->archivio.ListaFD();
        });
    }
    void ScegliTutto() {
        Quando(ora_ += traIPassi, [this] {
            if (auto* copia = dynamic_cast<frmCopyFromA*>(finestre.Davanti()))
                if (!copia->List1.List->empty()) copia->List1.Selected = NumeriRiga{0};
        });
    }
    /// The program is told to end.
    void Finisci(const std::function<void()>& prima) {
        Poi("the end", [=, this] {
            prima();
            coda.ChiediFine();
        });
    }
    /// Runs to the end, which the script must have asked for.
    void Vivi() {
        Fine(ora_ + 100 * traIPassi);
        if (SvolgiCopione([this] { programma_.DaMainAllaFine(false); }))
            sera_.Difetto("it doesn't end");
        Raccogli();
    }
    frmComposer* Composer() { return dynamic_cast<frmComposer*>(finestre.Davanti()); }
    std::string Note() {
        const frmComposer* f = Composer();
        return f ? f->stato.melodia.voci[soprano].testoNote : "no melody window";
    }

private:
    /// What was done before is over: what holds now?
    void Inizia(const std::string& nome) {
        Raccogli();
        Controlla();
        registro_->passo = nome;
    }
    void Raccogli() {
        for (std::string& detto : riquadri.messaggi)
            sera_.detti_.emplace_back(registro_->passo, std::move(detto));
        riquadri.messaggi.clear();
    }
    void Controlla() {
        frmComposer* f = Composer();
        if (!f || f->stato.melodia.voci[soprano].Vuota()) return;
        if (!f->stato.lblModificato.Visible()) {
            if (!SulDisco(Note())) sera_.Difetto("shown as saved, and in no file");
        } else if (!Tenuta(Note()) && !MaiTenuta(*registro_)) {
            sera_.Difetto("modified, and not kept");
        }
    }
    bool SulDisco(const std::string& note) const {
        return std::any_of(memoria_.contenuti.begin(), memoria_.contenuti.end(),
                           [&](const auto& voce) {
                               return voce.first.ends_with(".mel") &&
                                      LeggiMel(voce.second, '.').soprano[0] == note;
                           });
    }
    bool Tenuta(const std::string& note) const {
        const auto byte = memoria_.contenuti.find(percorsoTenuta);
        if (byte == memoria_.contenuti.end()) return false;
        const auto tenuta = LeggiTenuta(byte->second);
        return tenuta && tenuta->voci[soprano].note == note;
    }
    SeraConGuasti& sera_;
    FileInMemoria& memoria_;
    std::shared_ptr<RegistroFile> registro_;
    FileConGuasti dischi_{memoria_, registro_};
    Impostazioni archivioStato_{dischi_, riquadriVisti, percorsoStato};
    CustodeSubito custode_{std::make_unique<FileConGuasti>(memoria_, registro_)};
    Programma programma_{Ambiente{globali, pompa, finestre, riquadriVisti, suono, archivioStato_,
                                  dischi_, casuale, &custode_}};
    double ora_ = 3;
};

SeraConGuasti::SeraConGuasti() {
    for (const char* cartella :
         {"/programma/Melodie/Demo", "/home/u/Doc/vuota", "/media/stick", "/config"})
        disco_.CreaCartella(cartella);
    disco_.supportoRimovibile = cartellaSupporto;
    disco_.contenuti["/programma/langit.csv"] = disco_.contenuti["/programma/langen.csv"] =
        Lingua();
    for (const char* nome :
         {"/programma/Melodie/Demo/uno.mel", "/programma/Melodie/Demo/due.mel",
          "/home/u/Doc/vecchia.mel", "/home/u/Doc/inutile.mel", "/media/stick/portata.mel"})
        disco_.contenuti[nome] = FileDi(dueVoci);
}

SeraConGuasti::SeraConGuasti(std::size_t quale, const GuastoIniettato& guasto) : SeraConGuasti() {
    registro_->quale = quale;
    registro_->guasto = guasto;
}

std::string SeraConGuasti::Vivi() {
    Prima();
    Seconda();
    ControllaFile();
    const auto& guasto = registro_->guasto;
    if (disco_.Esiste(percorsoTenuta) && !(guasto && guasto->daAlloraInPoi))
        Difetto("what was saved comes back as unsaved");
    return difetto_;
}

void SeraConGuasti::Difetto(const std::string& cosa) {
    if (difetto_.empty()) difetto_ = cosa + ", after: " + registro_->passo;
}

void SeraConGuasti::Prima() {
    Sessione s(*this, "start");
    for (const char* voce : {"mnuPromemoria", "mnuSs", "mnuMidiTest", "mnuVersione"}) {
        s.Passo(voce, voce);
        s.Chiudi();
    }
    s.Passo("language", "mnuEn");
    s.Passo("opening", "mnuComposer");
    s.Passo("a rest", "cmdInsPausa");
    s.Passo("saving under a new name", "mnuSaveAs", false, "prima");
    s.Passo("another rest", "cmdInsPausa");
    s.Passo("saving", "mnuSalva");
    s.Passo("a third rest", "cmdInsPausa");
    s.Passo("saving onto a medium", "mnuSalvaA");
    s.Entra("/home/u/Doc/");
    s.Passo("a fourth rest", "cmdInsPausa");
    s.Passo("saving in place of another", "mnuSaveAs", true, "vecchia");
    s.Passo("a new folder", "cmdMkdir", false, "nuova");
    s.SullaRiga("vecchia", "renaming", "cmdRename", false, "antica");
    s.SullaRiga("» vuota", "deleting a folder", "cmdDelete", true);
    s.SullaRiga("inutile", "deleting a melody", "cmdDelete", true);
    s.Passo("importing", "mnuCopyFromA");
    s.ScegliTutto();
    s.Passo("copying", "cmdCopia");
    s.Chiudi();
    s.SullaRiga("portata", "loading", "cmdEseguiFile");
    s.Passo("the instruments", "mnuSs");
    s.Chiudi();
    s.Passo("the demonstrations", "cmdD");
    s.SullaRiga("uno", "loading a demonstration", "cmdEseguiFile");
    s.Passo("a rest that isn't saved", "cmdInsPausa");
    s.Finisci([&] { lasciata_ = s.Note(); });
    s.Vivi();
}

void SeraConGuasti::Seconda() {
    Sessione s(*this, "start again");
    s.Passo("opening again", "mnuComposer");
    s.Poi("found again", [&] { ControllaRitrovata(s.Note()); });
    s.Passo("a rest behind it", "cmdInsPausa");
    s.Passo("saving what was found", "mnuSaveAs", true, "ritrovata");
    s.Chiudi();
    // Without its texts it doesn't close.
    s.Passo("the ear trainer", "Intonazione");
    s.Chiudi();
    s.Finisci([] {});
    s.Vivi();
}

/// Where it can't be read it is still there, under this or another name.
void SeraConGuasti::ControllaRitrovata(const std::string& note) {
    const auto tenuta = [this](const std::string& percorso) {
        const auto melodia = LeggiTenuta(disco_.contenuti[percorso]);
        return melodia ? melodia->voci[soprano].note : "";
    };
    const std::string daParte = std::string(percorsoTenuta) + ".damaged";
    if (note != lasciata_ && tenuta(percorsoTenuta) != lasciata_ && tenuta(daParte) != lasciata_ &&
        !MaiTenuta(*registro_))
        Difetto("what wasn't saved is gone");
}

/// Nobody's file was replaced or taken away that he hadn't given up himself.
void SeraConGuasti::ControllaFile() {
    for (const ChiamataFile& c : registro_->chiamate) {
        const bool suo = c.percorso.starts_with("/stato/") || c.percorso.starts_with("/config/") ||
                         c.percorso.find("/Demo.nuova/") != std::string::npos;
        if (!c.alPosto || suo || c.passo == "saving") continue;
        const std::string nome = std::filesystem::path(c.percorso).stem();
        const bool chiesto = std::any_of(detti_.begin(), detti_.end(), [&](const auto& detto) {
            return detto.first == c.passo && detto.second.find(nome) != std::string::npos;
        });
        if (!chiesto) {
            std::ostringstream quale;
            quale << "without a question: " << c;
            Difetto(quale.str());
        }
    }
}

}  // namespace corvana::prova
