// Loading and saving a melody of four voices that are as long as voices can be, on the folder for
// temporary files; and what each insertion costs that splits a voice anew.
#include <cstdio>

#include "bench/figures.h"
#include "bench/long_voices.h"
#include "bench/row.h"
#include "bench/stopwatch.h"
#include "core/real_files.h"
#include "forms/virtual_clock.h"
#include "melody/tokens.h"
#include "sound/recorder.h"
#include "tests/core/temporary_folder.h"
#include "tests/hearing/melody_stage.h"

namespace {

using namespace corvana;

constexpr int prove = 101;
constexpr int proveInserimento = 1001;
constexpr const char* nome = "lunga";

struct Banco {
    Banco() {
        misura::Riempi(palco.melodia, noteMassime, misura::stileMisto, 0);
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            palco.Aggiorna(voce);
        palco.globali.percorsoCorrente = cartella.Di("");
        palco.finestra.archivio.SalvaMelodia(nome);
        palco.Scegli(cartella.Di(""), nome);
        file.Leggi(cartella.Di("lunga.mel"), byte);
    }

    prova::CartellaProvvisoria cartella;
    OrologioVirtuale orologio;
    FileReali file;
    prova::PalcoMelodia palco{orologio, file, [](auto istante) {
                                  return std::make_unique<Registratore>(std::move(istante));
                              }};
    std::string byte;
};

/// Milliseconds from the click on the melody to the end of the first tick's messages; the play that
/// begins with them is stopped.
double Carica(Banco& banco) {
    double passati = 0;
    const misura::Cronometro cronometro;
    banco.orologio.Quando(banco.orologio.Adesso(), [&] {
        passati = cronometro.Millisecondi();
        banco.palco.Premi(banco.palco.finestra.play.cmdPlay);
    });
    banco.palco.finestra.archivio.cmdEseguiFile_Click();
    return passati;
}

template <class Azione>
std::vector<double> Cronometra(int volte, const Azione& azione) {
    std::vector<double> tempi;
    for (int i = 0; i < volte; ++i) {
        const misura::Cronometro cronometro;
        azione();
        tempi.push_back(cronometro.Millisecondi());
    }
    return tempi;
}

template <class Azione>
void MisuraVolte(const std::string& titolo, int volte, const Azione& azione) {
    misura::Stampa(titolo, Cronometra(volte, azione), "ms");
}

void MisuraCaricamento(Banco& banco) {
    std::vector<double> tempi(prove);
    for (double& tempo : tempi)
        tempo = Carica(banco);
    misura::Stampa("load of 4 x 32,767 notes, to the first tick", tempi, "ms", {1, 50});
    MisuraVolte("  reading the file", prove, [&] {
        std::string letti;
        banco.file.Leggi(banco.cartella.Di("lunga.mel"), letti);
    });
    MisuraVolte("  LeggiMel", prove, [&] { LeggiMel(banco.byte, '.'); });
    MisuraVolte("  Spezza, four voices", prove, [&] {
        for (VoceMelodia& voce : banco.palco.melodia.voci)
            Spezza(voce);
    });
}

void MisuraSalvataggio(Banco& banco) {
    const frmComposer& finestra = banco.palco.finestra;
    misura::Stampa("save of 4 x 32,767 notes",
                   Cronometra(prove, [&] { banco.palco.finestra.archivio.SalvaMelodia(nome); }),
                   "ms", {1, 50});
    MisuraVolte("  ScriviMel", prove, [&] {
        ScriviMel({finestra.stato.melodia.voci, 60, {}, {}});
    });
    MisuraVolte("  ScriviAtomico", prove,
                [&] { banco.file.ScriviAtomico(banco.cartella.Di("altra.mel"), banco.byte); });
}

void MisuraSalvataggioOccupato(Banco& banco) {
    const misura::ProgrammiOccupati occupati(true);
    MisuraVolte("save of 4 x 32,767 notes beside busy programs", prove,
                [&] { banco.palco.finestra.archivio.SalvaMelodia(nome); });
}

/// The last note of a voice is put behind the others, over and over.
void MisuraInserimento(prova::PalcoMelodia& palco, long note) {
    std::vector<double> tempi;
    VoceMelodia& voce = palco.melodia.voci[soprano];
    for (int i = 0; i < proveInserimento; ++i) {
        misura::Riempi(voce, note - 1, misura::stileMisto, 0);
        palco.finestra.voci.AggiornaVoce();
        const misura::Cronometro cronometro;
        voce.testoNote += "60;";
        voce.testoDurate += "0.25;";
        voce.testoAttributi += "n;";
        palco.finestra.voci.AggiornaVoce();
        tempi.push_back(cronometro.Millisecondi());
    }
    const std::string titolo = "insertion as the last of " + std::to_string(note) + " notes, ";
    misura::Stampa(titolo + "AggiornaVoce", tempi, "ms");
    MisuraVolte("  its display, MostraNoteVoce", prove,
                [&] { palco.finestra.voci.MostraNoteVoce(); });
}

}  // namespace

int main() {
    Banco banco;
    std::printf("a melody file of %zu bytes\n", banco.byte.size());
    MisuraCaricamento(banco);
    MisuraSalvataggio(banco);
    MisuraSalvataggioOccupato(banco);
    for (const long note : {1000L, noteMassime})
        MisuraInserimento(banco.palco, note);
    for (const std::string& messaggio : banco.palco.riquadri.messaggi)
        std::printf("a message box: %s\n", messaggio.c_str());
    return banco.palco.riquadri.messaggi.empty() && !banco.byte.empty() ? 0 : 1;
}
