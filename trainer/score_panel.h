// The panel of the score: the counts of a run, the bar, the results when it is over. Logic thread.
#pragma once

#include <array>
#include <string>

#include "forms/form.h"
#include "trainer/exercise_state.h"

namespace corvana {

class PannelloPunteggio {
public:
    /// Makes the controls in `finestra`; it and the texts must live as long as the panel.
    PannelloPunteggio(Form& finestra, const TestiLingua& testi);

private:
    Form& finestra_;

public:
    Figura bgConta{finestra_, "bgConta"};
    Casella conta{finestra_, "conta"}, er{finestra_, "er"}, PercEs{finestra_, "PercEs"};
    Figura PercBg{finestra_, "PercBg"}, PercMet{finestra_, "PercMet"};

    Cornice frmRisultati{finestra_, "frmRisultati"};
    std::array<Figura, 5> bgRis{{{finestra_, "bgRis0", &frmRisultati},
                                 {finestra_, "bgRis1", &frmRisultati},
                                 {finestra_, "bgRis2", &frmRisultati},
                                 {finestra_, "bgRis3", &frmRisultati},
                                 {finestra_, "bgRis4", &frmRisultati}}};
    Etichetta Lresatte{finestra_, "Lresatte", &frmRisultati},
        Lrerrate{finestra_, "Lrerrate", &frmRisultati}, Ridate{finestra_, "Ridate", &frmRisultati},
        Lnmostrate{finestra_, "Lnmostrate", &frmRisultati},
        Tempoimp{finestra_, "Tempoimp", &frmRisultati};

    int Esatte = 0;     ///< right answers of this run
    int Errate = 0;     ///< wrong answers of this run
    int Mostrate = 0;   ///< notes shown, automatic mode only
    int OraInizio = 0;  ///< time of day of the run's begin and end, in seconds
    int OraFine = 0;
    std::string Percentuale;  ///< the last formatted percentage
    float Rapporto = 0;       ///< right answers as a share, 0 to 1

    void Dipingi();
    /// A run begins at that time of day.
    void Comincia(int ora);
    void Giusta();
    void Sbagliata();
    void MostraErrate();
    /// Of so many answers, or notes, as `Ridate` calls them by `prefisso`.
    void MostraPunteggio(const std::string& prefisso, int risposte);
    /// The run is over, at that time of day.
    void MostraRisultati(int ora);

private:
    void PonRapporto(float rapporto);

    const TestiLingua& testi_;
};

}  // namespace corvana
