// Every text of every window, and of what comes up over it, can be read: in both languages, in all
// states of a walk through the program, at the designed and at the smallest size.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QToolTip>
#include <algorithm>
#include <set>

#include "desktop/look.h"
#include "desktop/theme.h"
#include "tests/desktop/memory_home.h"
#include "tests/desktop/program_stage.h"
#include "tests/desktop/quick_clock.h"
#include "tests/desktop/text_witness.h"
#include "tests/desktop/walk.h"

namespace corvana::prova {
namespace {

constexpr double letteraMinima = 11;
constexpr double contrastoMinimo = 4.5;
constexpr double fretta = 10;

/// Texts whose colours are given, and closer to their ground than they should be: what can be left
/// or played by a click, under the pointer; the switch of the melody window's metronome.
bool EDato(const TestoDipinto& t) {
    constexpr QRgb rosso = qRgb(255, 0, 0), bianco = qRgb(255, 255, 255);
    if (t.testo == QLatin1String("Off")) return t.penna.rgb() == bianco && t.fondo.rgb() == rosso;
    const bool sotto = t.testo == QLatin1String("Play") || t.testo == QLatin1String("Stop");
    return sotto && t.penna.rgb() == rosso;
}

void Giudica(QWidget& cosa, const QString& nome) {
    for (const TestoDipinto& t : LeggiDipinto(cosa)) {
        const std::string quale = (nome + QStringLiteral(": ") + t.testo).toStdString();
        EXPECT_GE(t.pixel, letteraMinima) << quale;
        EXPECT_TRUE(t.intero) << quale << " is cut off";
        if (EDato(t)) continue;
        EXPECT_GE(t.contrasto, contrastoMinimo) << quale << ", " << t.penna.name().toStdString()
                                                << " on " << t.fondo.name().toStdString();
    }
}

/// The window as small as its user can make it; false where it is already.
bool Rimpicciolisci(QMainWindow& finestra) {
    const QSize prima = finestra.size();
    finestra.resize(1, 1);
    if (finestra.size() == prima) return false;
    return Aspetta([&] { return finestra.centralWidget()->width() == finestra.width(); });
}

class FinestreLette : public testing::TestWithParam<bool> {};

TEST_P(FinestreLette, InLargeLettersThatStandOutAndAreWhole) {
    OrologioSvelto orologio(fretta);
    FileInMemoria file;
    const QString cartella = QStringLiteral(CORVANA_DATA);
    PalcoProgramma palco(cartella, [&](Macchina& macchina) {
        macchina.orologio = &orologio;
        DaiCasa(file, macchina, cartella);
        RiempiSupporto(file);
    });
    std::set<QString> visti;
    Passeggiata giro(palco.scrivania, [&](QWidget& cosa, const QString& nome) {
        VistaFinestra& davanti = *palco.scrivania.Davanti();
        const bool finestra = &davanti.Finestra() == &cosa;
        if (finestra) Ingrandisci(davanti, 1);
        Giudica(cosa, nome);
        visti.insert(finestra ? cosa.objectName() : cosa.metaObject()->className());
        if (!finestra || !Rimpicciolisci(davanti.Finestra())) return;
        Giudica(cosa, nome + QStringLiteral(" at its smallest"));
        Ingrandisci(davanti, 1);
    });
    giro.Gira(GetParam());
    EXPECT_EQ(visti, (std::set<QString>{"CorvanaMainF", "frmAbout", "frmComposer", "frmConfMetro",
                                        "frmCopyFromA", "frmInto", "frmMidiTest", "frmOptions",
                                        "frmStrum", "QComboBoxPrivateContainer", "QInputDialog",
                                        "QMenu", "QMessageBox", "QTipLabel"}));
}

INSTANTIATE_TEST_SUITE_P(InOgniLingua, FinestreLette, testing::Values(false, true),
                         [](const testing::TestParamInfo<bool>& info) {
                             return info.param ? "English" : "Italian";
                         });

}  // namespace
}  // namespace corvana::prova
