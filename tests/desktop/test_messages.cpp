// What the program tells and asks in boxes, brought about in the real windows, in both languages.
#include <gtest/gtest.h>

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <cerrno>

#include "tests/desktop/tour.h"
#include "tests/language/expected_rows.h"

namespace corvana::prova {
namespace {

const std::string cartella = "/casa/Documenti/Corvana/Melodie/Demo/";

/// One who reads each box and compares it with the words of its rows.
class Lettore {
public:
    Lettore(Giro& giro, std::string_view RigaAttesa::*lingua) : g_(giro), lingua_(lingua) {}

    /// The box that is up says what these rows say, and is closed by No or Cancel.
    void Legge(const std::vector<int>& righe) {
        Guarda(righe);
        if (!g_.scrivania.Riquadro()) return;
        g_.scrivania.Riquadro()->reject();
        g_.Calma();
        g_.scrivania.Davanti()->Finestra().activateWindow();
        g_.Calma();
    }
    /// The same, and is then given that text.
    void LeggeERisponde(const std::vector<int>& righe, const std::string& testo) {
        Guarda(righe);
        g_.Rispondi(testo);
    }

private:
    void Guarda(const std::vector<int>& righe) {
        const auto su = [this] {
            return g_.scrivania.Riquadro() && g_.scrivania.Riquadro()->isVisible();
        };
        ASSERT_TRUE(su()) << "no box came for row " << righe.front();
        const std::string scritto = Scritto(*g_.scrivania.Riquadro()).toStdString();
        for (const int riga : righe)
            EXPECT_NE(scritto.find(ParoleDi(riga, lingua_)), std::string::npos)
                << riga << ": " << scritto;
        for (const auto* bottone : g_.scrivania.Riquadro()->findChildren<QPushButton*>())
            EXPECT_TRUE(DiUnRiquadro(bottone->text().toStdString()))
                << bottone->text().toStdString();
    }
    /// One of Yes, No, OK and Cancel.
    bool DiUnRiquadro(const std::string& bottone) const {
        constexpr std::array righe = {384, 385, 386, 387};
        return std::ranges::any_of(righe,
                                   [&](int riga) { return bottone == ParoleDi(riga, lingua_); });
    }
    static QString Scritto(const QDialog& riquadro) {
        if (const auto* domanda = qobject_cast<const QMessageBox*>(&riquadro))
            return domanda->text();
        const auto& testo = dynamic_cast<const QInputDialog&>(riquadro);
        return testo.windowTitle() + QLatin1Char('\n') + testo.labelText();
    }

    Giro& g_;
    std::string_view RigaAttesa::*lingua_;
};

struct Messaggi : ::testing::TestWithParam<bool> {
    CasaDiMemoria casa;
    Giro g{casa};
    Lettore l{g, GetParam() ? &RigaAttesa::inglese : &RigaAttesa::italiano};

    Messaggi() { g.Scegli(GetParam() ? "mnuEn" : "mnuIt"); }
    void ApriComposer(int note) {
        g.ApriComposer();
        for (int nota = 0; nota < note; ++nota)
            g.Tocca("cmdInsNota");
    }
    void Salva(const std::string& nome) {
        g.SalvaConNome(nome);
        g.Tocca("cmdChiudi");
    }
};

INSTANTIATE_TEST_SUITE_P(Lingue, Messaggi, ::testing::Bool());

TEST_P(Messaggi, OfTheEarTrainersRanges) {
    g.Scegli("mnuRac");
    g.Attendi("frmInto");
    g.ToccaTasto(59);
    l.Legge({230});
    g.ToccaTasto(12);
    g.ToccaTasto(31);
    g.ToccaTasto(19);
    l.Legge({217});
    g.Scegli("mnuNotA");
    g.Tocca("IntoStart");
    g.Tocca("IntoStart");
    g.Tocca("cmdReimposta");
    g.ToccaTasto(24);
    g.ToccaTasto(23);
    l.Legge({231});
    g.Tocca("lb25");
    l.Legge({232});
    g.ToccaTasto(36);
    g.ToccaTasto(48);
    l.Legge({244});
}

TEST_P(Messaggi, OfSaving) {
    ApriComposer(2);
    g.Tocca("ToolButton5");
    l.LeggeERisponde({255, 259}, "a/b");
    l.Legge({256});
    Salva("uno");
    g.Tocca("ToolButton5");
    g.Rispondi("uno");
    l.Legge({257, 258});
    g.Scegli("mnuSalvaA");
    l.Legge({260});
    casa.casa.guasti["/media/penna/uno.mel"] = ENOSPC;
    g.Scegli("mnuSalvaA");
    l.Legge({261});
    casa.casa.supportoRimovibile.clear();
    g.Scegli("mnuSalvaA");
    l.Legge({262});
    g.Tocca("cmdChiudi");
    g.Tocca("cmdInsNota");
    g.Tocca("cmdCm");
    l.Legge({276});
}

TEST_P(Messaggi, OfFoldersAndFiles) {
    ApriComposer(1);
    Salva("uno");
    g.SalvaConNome("due");
    g.Tocca("cmdMkdir");
    l.LeggeERisponde({367, 368}, "a:b");
    l.Legge({369});
    g.Tocca("cmdMkdir");
    g.Rispondi("tana");
    g.Tocca("cmdMkdir");
    g.Rispondi("tana");
    l.Legge({373});
    g.ToccaRiga("» tana");
    g.Tocca("cmdDelete");
    l.Legge({370});
    casa.casa.contenuti[cartella + "tana/altra.mel"] = "not read";
    g.Tocca("cmdDelete");
    l.Legge({371});
    g.ToccaRiga("uno");
    g.Tocca("cmdRename");
    l.LeggeERisponde({361, 362}, "due");
    l.Legge({374});
    g.Tocca("cmdDelete");
    l.Legge({372});
    casa.casa.contenuti[cartella + "uno.mel"] = "60;62;\r\n1;\r\nn;n;\r\n 60 \r\n 16 \r\n";
    g.ToccaRigaDueVolte("uno");
    l.Legge({366});
}

TEST_P(Messaggi, OfBookmarksAndTransposition) {
    ApriComposer(3);
    g.Tocca("cmdAddBm");
    l.LeggeERisponde({357}, "a;b");
    l.Legge({358});
    g.Tocca("cmdAddBm");
    g.Rispondi("x");
    g.ScegliRiga("lstBookMark", "1 ÷ 3 ÷ x");
    g.Tocca("cmdRenameBm");
    l.LeggeERisponde({360, 362}, "a;b");
    l.Legge({359});
    g.Tocca("cmdDelBm");
    l.Legge({363});
    g.Tocca("cmdHideBm");
    g.Tocca("lb59");
    g.Tocca("cmdInsNota");
    g.Tocca("lblIDs1");
    g.Tocca("lblSemitoni");
    l.Legge({364, 365});
    g.Tocca("cmdPaste");
    EXPECT_NE(g.Dice("lblIncolla")
                  .find(ParoleDi(254, GetParam() ? &RigaAttesa::inglese : &RigaAttesa::italiano)),
              std::string::npos);
}

}  // namespace
}  // namespace corvana::prova
