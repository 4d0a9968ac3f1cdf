#include "utilities/about.h"

#include <gtest/gtest.h>

#include "tests/program/program_rig.h"

namespace corvana::prova {

TEST(Informazioni, TheMenuOpensARoundedPanelWithTitleYearAndVersion) {
    BancoProgramma b;
    b.file.contenuti["/programma/langit.csv"] = "79;frmAbout;edizione\n82;frmAbout;Chi siamo\n";
    b.Clicca(3, "mnuVersione");
    b.Quando(4, [&] {
        const auto& about = dynamic_cast<frmAbout&>(*b.finestre.Davanti());
        EXPECT_EQ(about.lblTitle.Caption(), "Corvana\r\n2026");
        EXPECT_EQ(about.lblVersion.Caption(), "Vers. 1.0.0 - edizione");
        EXPECT_EQ(about.Text2.Text(), "Chi siamo");
        EXPECT_TRUE(about.Text2.Locked());
        EXPECT_EQ(about.Width(), 345 * 15);
        EXPECT_EQ(about.Height(), 240 * 15);
        EXPECT_EQ(about.stile, "arrotondata");
        EXPECT_EQ(about.frmBg.Sfondo(),
                  (Sfumatura{Rgb(255, 191, 58), Rgb(255, 239, 154), true, false}));
    });
    b.Vai(5);
}

TEST(Informazioni, TheButtonAndEscCloseIt) {
    for (const bool tasto : {true, false}) {
        BancoProgramma b;
        b.Clicca(3, "mnuVersione");
        if (tasto)
            b.Tasto(4, 27);
        else
            b.Clicca(4, "cmdOK");
        b.Vai(5);
        EXPECT_EQ(b.finestre.Davanti(), &b.finestra);
    }
}

TEST(Informazioni, NoOtherKeyClosesIt) {
    BancoProgramma b;
    b.Clicca(3, "mnuVersione");
    for (int codice = 1; codice < 256; ++codice)
        if (codice != 27) b.Tasto(4, codice);
    b.Quando(5, [&] { EXPECT_EQ(b.finestre.Davanti()->Name, "frmAbout"); });
    b.Vai(6);
}

}  // namespace corvana::prova
