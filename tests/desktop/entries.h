// A user who chooses every entry of the menus and looks what comes of it. GUI thread.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>

#include "tests/desktop/visit.h"

namespace corvana::prova {

/// What is to be seen when the entry was chosen, and how things are put back.
struct Scelta {
    std::string voce;
    std::function<bool()> fatto;
    std::function<void()> dopo = {};
};

/// The entries that can be chosen, of all menus of the window in front.
inline std::set<std::string> VociDi(Scrivania& scrivania) {
    std::set<std::string> voci;
    const QMainWindow& finestra = scrivania.Davanti()->Finestra();
    for (const QAction* azione : finestra.findChildren<QAction*>())
        if (!azione->isSeparator() && !azione->menu() && !azione->objectName().isEmpty())
            voci.insert(azione->objectName().toStdString());
    return voci;
}

struct Voci : ::testing::Test {
    Visita v;

    /// Chooses each; those are all that there are, but for `altre`.
    void Prova(const std::vector<Scelta>& scelte, const std::set<std::string>& altre) {
        std::set<std::string> provate = altre;
        for (const Scelta& scelta : scelte) {
            v.Scegli(scelta.voce);
            EXPECT_TRUE(scelta.fatto()) << scelta.voce;
            if (scelta.dopo) scelta.dopo();
            provate.insert(scelta.voce);
        }
        EXPECT_EQ(VociDi(v.scrivania), provate);
    }

    Scelta Apre(const std::string& voce, const std::string& finestra, const std::string& sotto,
                const std::string& cornice = {}) {
        return {voce,
                [=, this] { return Davanti() == finestra && (cornice.empty() || Vede(cornice)); },
                [=, this] { v.TornaA(sotto); }};
    }
    /// The last that is told is that channel's instrument.
    Scelta Strumento(const std::string& voce, std::uint32_t programma, std::uint32_t canale = 0) {
        return {voce, [=, this] {
                    const auto& mandati = v.suonato->messaggi;
                    return !mandati.empty() &&
                           mandati.back().messaggio == (0xC0U | canale | programma << 8U);
                }};
    }
    /// It is ticked, and the other one isn't.
    Scelta Spunta(const std::string& voce, const std::string& altra) {
        return {voce, [=, this] { return Spuntata(voce) && !Spuntata(altra); }};
    }
    /// A box that says so comes up; it is refused.
    Scelta Chiede(const std::string& voce, const QString& testo) {
        return {voce, [=, this] { return Riquadro().contains(testo); },
                [this] {
                    v.scrivania.Riquadro()->reject();
                    v.Calma();
                    v.scrivania.Davanti()->Finestra().activateWindow();
                    v.Calma();
                }};
    }

    std::string Davanti() { return v.scrivania.Davanti()->Finestra().objectName().toStdString(); }
    bool Vede(const std::string& nome) { return v.Di(nome).isVisible(); }
    bool Spuntata(const std::string& voce) {
        return TrovaVoce(v.scrivania, QString::fromStdString(voce)).isChecked();
    }
    QString Scritta(const std::string& bottone) {
        return v.Di(bottone).Come<QAbstractButton>().text();
    }
    QString Riquadro() {
        QString testi;
        if (const QDialog* riquadro = v.scrivania.Riquadro())
            for (const QLabel* scritta : riquadro->findChildren<QLabel*>())
                testi += scritta->text();
        return testi;
    }
    std::string Pagina() {
        const FinestraAiuto* aiuto = v.scrivania.Aiuto();
        return aiuto && aiuto->isVisible() ? aiuto->Pagina().toStdString() : "";
    }
};

}  // namespace corvana::prova
