// The whole program in real windows, played to an output that is heard afterwards, for a user who
// has a mouse and a keyboard and sees what each gesture did before the next one. What the program
// waits for takes no time. GUI thread.
#pragma once

#include <QTemporaryDir>
#include <string>
#include <vector>

#include "sound/outputs/offline_renderer.h"
#include "tests/desktop/hand_clock.h"
#include "tests/desktop/program_stage.h"

namespace corvana::prova {

/// The synthesiser without a device, with a note of all that it was told. Logic thread, or any
/// while the logic waits.
class UscitaAscoltata final : public PiattaformaMidi {
public:
    struct Mandato {
        double istante = 0;  ///< from where the listening began
        std::uint32_t messaggio = 0;
        bool operator==(const Mandato&) const = default;
    };

    explicit UscitaAscoltata(std::function<double()> istante) : istante_(std::move(istante)) {}

    /// From the instant `da` on it is heard. Notes that were sent before have faded by then.
    void Ascolta(double da);
    const std::vector<Mandato>& Mandati() const { return mandati_; }
    /// What is heard, in stereo. Once.
    std::vector<float> Senti(double secondi) { return resa_.Rendi(secondi); }

    int midiOutOpen(HandleDispositivo& handle, std::int32_t id) override {
        return resa_.midiOutOpen(handle, id);
    }
    int midiOutClose(HandleDispositivo handle) override { return resa_.midiOutClose(handle); }
    int midiOutReset(HandleDispositivo handle) override { return resa_.midiOutReset(handle); }
    int midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) override;
    std::string midiOutGetErrorTextA(int codice) override {
        return resa_.midiOutGetErrorTextA(codice);
    }
    int midiOutGetNumDevs() override { return resa_.midiOutGetNumDevs(); }
    int midiOutGetDevCapsA(std::int32_t id, std::string& nome) override {
        return resa_.midiOutGetDevCapsA(id, nome);
    }
    void sndPlaySoundA(const std::string&, unsigned) override {}

private:
    double Istante() const { return ascolta_ ? istante_() - da_ : 0; }

    std::function<double()> istante_;
    bool ascolta_ = false;
    double da_ = 0;
    std::vector<Mandato> mandati_;
    ResaOffline resa_{[this] { return Istante(); }};
};

std::string Contenuto(const std::string& percorso);

/// What must be there before the program begins.
struct ArnesiAMano {
    OrologioImpaziente orologio;
    UscitaAscoltata* uscita = nullptr;  ///< as long as the logic runs
    QTemporaryDir stato;
};

class PalcoAMano : protected ArnesiAMano, public PalcoProgramma {
public:
    /// Melodies are opened in, and saved into, `cartella`. `prepara` may change the machine.
    explicit PalcoAMano(const std::string& cartella,
                        const std::function<void(Macchina&)>& prepara = {});
    PalcoAMano(const PalcoAMano&) = delete;
    PalcoAMano& operator=(const PalcoAMano&) = delete;
    ~PalcoAMano() { scrivania.Termina(); }

    Cosa Di(const std::string& nome) { return Trova(scrivania, QString::fromStdString(nome)); }
    const std::string& Dice(const std::string& nome);
    /// Returns when the program has done all that it was told to, and shows it.
    void Calma();
    std::function<void()> dopo;  ///< called then; may be empty
    void Tocca(const std::string& nome);
    /// At a place, in pixels of the control.
    void Tocca(const std::string& nome, QPoint dove);
    void ToccaDueVolte(const std::string& nome);
    void ToccaDueVolte(const std::string& nome, QPoint dove);
    /// A key goes down, is held until the program has done what it is for, and comes up.
    void Batti(Qt::Key tasto, Qt::KeyboardModifiers modificatori = {});
    /// The Tab key, as often as it takes until the control has the keyboard.
    void VaiA(const std::string& nome);
    /// Drags the thumb of a slider until `casella` says so.
    void Trascina(const std::string& barra, const std::string& casella, const std::string& finche);
    /// Types into the box that asks for a text, and Enter.
    void Rispondi(const std::string& testo);
    /// Answers the question that is up with Yes or No.
    void Decidi(bool si);

    /// Plays, by a click on the button, and returns when the play is over, what it sent and how it
    /// sounds.
    struct Udito {
        std::vector<UscitaAscoltata::Mandato> mandati;
        std::vector<float> suono;  ///< in stereo, with what rings on after the end
        double fine = 0;           ///< of the play, in seconds of the sound
    };
    Udito Suona();
    /// What is sent from now on is all that counts.
    void Ascolta() { uscita->Ascolta(orologio.Adesso()); }
    /// So many seconds later the program is held up in its next wait, until it may go on.
    void FermaDopo(double secondi) { orologio.FermaA(orologio.Adesso() + secondi); }
    void Prosegui();
    /// So many seconds pass, and it is held up there.
    void LasciaPassare(double secondi);

    /// Chooses the entry of a menu; throws when it can't be chosen.
    void Scegli(const std::string& voce);
    /// The window of that name is to come to the front.
    void Attendi(const std::string& finestra);
    /// Closes the window in front; that one lies beneath.
    void TornaA(const std::string& finestra);

private:
    QDialog& RiquadroAperto();
    void DopoIlRiquadro();
    bool Fermo();
};

}  // namespace corvana::prova
