// Every style word of every window means something to a face.
#include <gtest/gtest.h>

#include "composer/composer.h"
#include "desktop/aspect.h"
#include "desktop/style_words.h"
#include "eartrainer/into.h"
#include "metronome/conf_metro.h"
#include "tests/desktop/keyboard_form.h"
#include "tests/program/program_rig.h"
#include "utilities/about.h"
#include "utilities/instruments.h"
#include "utilities/midi_test.h"
#include "utilities/options.h"

namespace corvana::prova {
namespace {

/// How many words the window's controls have; each must be known.
int ControllaParole(const Form& finestra) {
    int parole = 0;
    for (const Controllo* controllo : finestra.Controlli())
        for (const QString& parola : ParoleDi(controllo->stile)) {
            ++parole;
            EXPECT_TRUE(ParolaNota(parola)) << controllo->Name << ": " << parola.toStdString();
        }
    return parole;
}

TEST(ParoleStile, AllOfEveryWindowAreKnown) {
    BancoProgramma b;
    EXPECT_GT(ControllaParole(b.finestra), 80);
    EXPECT_GT(ControllaParole(frmConfMetro(b.Tutto())), 10);
    EXPECT_GT(ControllaParole(frmAbout(b.Tutto())), 0);
    ControllaParole(frmMidiTest(b.Tutto()));
    EXPECT_GT(ControllaParole(frmOptions(b.Tutto())), 150);
    ControllaParole(frmStrum(b.Tutto()));
    EXPECT_GT(ControllaParole(frmComposer(b.Tutto(), {})), 250);
    EXPECT_GT(ControllaParole(frmInto(b.Tutto(), {})), 250);
    EXPECT_EQ(ControllaParole(FormTastiera()), 122);
}

TEST(ParoleStile, AMisspeltOneIsNot) {
    for (const char* parola : {"pulsant", "Pulsante", "icona", "nom:lblA", "", "luci"})
        EXPECT_FALSE(ParolaNota(QLatin1String(parola))) << parola;
    for (const char* parola :
         {"icona:aiuto", "figura:2", "consiglio:lblA", "nome:lblA", "nome", "luce", "spiegazione"})
        EXPECT_TRUE(ParolaNota(QLatin1String(parola))) << parola;
}

}  // namespace
}  // namespace corvana::prova
