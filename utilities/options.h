// The reference chart: a small book of tables with three pages. It has no sound, and nothing of it
// is stored. Arrays of controls are numbered as their names are: `Frame1`, `Img` and `Ton` from 1,
// the others from 0. Logic thread.
#pragma once

#include <deque>

#include "core/globals.h"
#include "core/interval_names.h"
#include "forms/form.h"
#include "utilities/options_keys.h"

namespace corvana {

class frmOptions final : public Form {
public:
    explicit frmOptions(const Ambiente& ambiente);

private:
    /// An array of controls: the first one's number stands behind the name of the first.
    template <class T>
    std::deque<T> Serie(const char* nome, int primo, std::size_t quanti, Controllo* padre = {}) {
        std::deque<T> serie;
        for (int n = primo; serie.size() < quanti; ++n)
            serie.emplace_back(*this, nome + std::to_string(n), padre);
        return serie;
    }

public:
    std::deque<Interruttore> cmdSel = Serie<Interruttore>("cmdSel", 0, 3);  ///< choose the page
    std::deque<Cornice> Frame1 = Serie<Cornice>("Frame1", 1, 3);            ///< the pages

    // Names and values of the notes.
    Figura Scala{*this, "Scala", &Frame1[0]}, Image1{*this, "Image1", &Frame1[0]};
    /// Seven Latin names, then their letters.
    std::deque<Etichetta> Label36 = Serie<Etichetta>("Label36", 0, 14, &Frame1[0]);
    std::deque<Etichetta> lblnn = Serie<Etichetta>("lblnn", 0, 7, &Frame1[0]);

    // The mirror of the keys.
    Figura Image3{*this, "Image3", &Frame1[1]};
    Etichetta Label37{*this, "Label37", &Frame1[1]}, lblModo{*this, "lblModo", &Frame1[1]},
        lblMa{*this, "lblMa", &Frame1[1]}, lblMi{*this, "lblMi", &Frame1[1]};
    /// The letters of the major and the minor keys, by row.
    std::deque<Etichetta> lblMag = Serie<Etichetta>("lblMag", 1, righeSpecchio, &Frame1[1]);
    std::deque<Etichetta> lblMin = Serie<Etichetta>("lblMin", 1, righeSpecchio, &Frame1[1]);
    /// The heading, then what the rows from the second on alter.
    std::deque<Etichetta> lblNa = Serie<Etichetta>("lblNa", 0, righeSpecchio, &Frame1[1]);
    /// By row, and the last one for the degrees.
    std::deque<Interruttore> Ton = Serie<Interruttore>("Ton", 1, righeSpecchio + 1, &Frame1[1]);
    std::deque<Figura> Img = Serie<Figura>("Img", 1, righeSpecchio, &Frame1[1]);
    Cornice Gradi{*this, "Gradi", &Frame1[1]};
    std::deque<Etichetta> Label35 = Serie<Etichetta>("Label35", 0, 7, &Gradi);

    // Intervals.
    Etichetta Label31{*this, "Label31", &Frame1[2]};
    std::deque<Etichetta> Label4 = Serie<Etichetta>("Label4", 0, nomiIntervalli.size(), &Frame1[2]);
    std::deque<Etichetta> LblSemi =
        Serie<Etichetta>("LblSemi", 0, dimensioniIntervallo, &Frame1[2]);
    Etichetta Label32{*this, "Label32", &Frame1[2]}, Label34{*this, "Label34", &Frame1[2]},
        Label33{*this, "Label33", &Frame1[2]};
    Figura Frecce{*this, "Frecce", &Frame1[2]};
    std::deque<Etichetta> lblInter = Serie<Etichetta>("lblInter", 0, 4, &Frame1[2]);

    Bottone cmdOK{*this, "cmdOK"};

    int Pagina = 0;                      ///< in front, from 1; 0 before the first activation
    Colore ColoreSel = coloreDiSistema;  ///< the selected `cmdSel`'s own
    std::size_t Davanti = 1;             ///< number of the picture in front, shown or not

    void Form_Load() override;
    void Form_Activate() override;
    void cmdSel_Click(int Index);
    /// `Index` from 1, 16 for the degrees.
    void Ton_Click(std::size_t Index);
    void cmdOK_Click();

private:
    void Seleziona(int pagina);
    void PonTon(std::size_t Index, bool aperto);
    void MostraTonalita(std::size_t Index, bool mostra);
    void MostraGradi(bool mostra);

    Ambiente a_;
};

}  // namespace corvana
