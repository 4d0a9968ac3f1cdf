// One run of the whole program on a disk of which any call can be made to fail, at a user's hand.
// It tells whenever what shows as saved is in no file, or what doesn't isn't kept. Logic thread.
#pragma once

#include <algorithm>
#include <memory>

#include "composer/composer.h"
#include "composer/copy_from_a.h"
#include "core/real_guardian.h"
#include "melody/kept_melody.h"
#include "melody/mel_reader.h"
#include "tests/program/program_rig.h"
#include "tests/support/faulty_files.h"

namespace corvana::prova {

inline constexpr const char* percorsoTenuta = "/stato/corvana/unsaved-melody";

/// What outlives a run.
struct TavoloConGuasti {
    FileInMemoria disco;
    std::shared_ptr<RegistroFile> registro = std::make_shared<RegistroFile>();
    /// What the boxes said, with what the user was doing.
    std::vector<std::pair<std::string, std::string>> detti;
    std::string difetto;  ///< the first thing that was wrong

    void Difetto(const std::string& cosa) {
        if (difetto.empty()) difetto = cosa + ", after: " + registro->passo;
    }
    /// The disk took no copy of it: the program's own memory was all there was.
    bool MaiTenuta() const {
        return std::any_of(registro->chiamate.begin(), registro->chiamate.end(), [](const auto& c) {
            return c.fallita && c.operazione != Operazione::Leggi &&
                   c.percorso.starts_with("/stato");
        });
    }
};

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

/// The program from its start to its end.
class SessioneConGuasti : public Banco {
public:
    SessioneConGuasti(TavoloConGuasti& tavolo, const std::string& inizio) : tavolo_(tavolo) {
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
                tavolo_.Difetto("no " + controllo + (davanti ? " in " + davanti->Name : ""));
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
            tavolo_.Difetto("it doesn't end");
        Raccogli();
    }
    frmComposer* Composer() { return dynamic_cast<frmComposer*>(finestre.Davanti()); }
    std::string Note() {
        const frmComposer* f = Composer();
        return f ? f->stato.melodia.voci[soprano].testoNote : "no melody window";
    }

private:
    static constexpr double traIPassi = 20;  // a short melody plays meanwhile

    /// What was done before is over: what holds now?
    void Inizia(const std::string& nome) {
        Raccogli();
        Controlla();
        registro_->passo = nome;
    }
    void Raccogli() {
        for (std::string& detto : riquadri.messaggi)
            tavolo_.detti.emplace_back(registro_->passo, std::move(detto));
        riquadri.messaggi.clear();
    }
    void Controlla() {
        frmComposer* f = Composer();
        if (!f || f->stato.melodia.voci[soprano].Vuota()) return;
        if (!f->stato.lblModificato.Visible()) {
            if (!SulDisco(Note())) tavolo_.Difetto("shown as saved, and in no file");
        } else if (!Tenuta(Note()) && !tavolo_.MaiTenuta()) {
            tavolo_.Difetto("modified, and not kept");
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
    TavoloConGuasti& tavolo_;
    FileInMemoria& memoria_ = tavolo_.disco;
    std::shared_ptr<RegistroFile> registro_ = tavolo_.registro;
    FileConGuasti dischi_{memoria_, registro_};
    Impostazioni archivioStato_{dischi_, riquadriVisti, "/config/settings"};
    CustodeSubito custode_{std::make_unique<FileConGuasti>(memoria_, registro_)};
    Programma programma_{Ambiente{globali, pompa, finestre, riquadriVisti, suono, archivioStato_,
                                  dischi_, casuale, &custode_}};
    double ora_ = 3;
};

}  // namespace corvana::prova
