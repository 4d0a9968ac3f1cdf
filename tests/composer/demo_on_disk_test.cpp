// The demonstration melodies laid on the machine's own disk, from those that come with the program.
#include <gtest/gtest.h>

#include "composer/demo_melodies.h"
#include "core/real_files.h"
#include "tests/composer/demo_files.h"
#include "tests/composer/disk_rig.h"
#include "tests/support/full_disk.h"

namespace corvana::prova {

namespace {

namespace fs = std::filesystem;

struct BancoDeposito {
    CartellaProvvisoria cartella;
    FileReali file{{}};
    RiquadriDaCopione riquadri;
    Impostazioni impostazioni{file, riquadri, cartella.Di("config/settings")};
    Globali globali;
    corvana::MelodieDemo demo{file, impostazioni, globali};

    BancoDeposito() {
        impostazioni.Prepara();
        globali.CartellaProgramma = cartella.Di("program");
        globali.CartellaDocumenti = cartella.Di("Doc/");
        fs::create_directories(cartella.Di("program/Melodie"));
        fs::create_directory_symlink(CORVANA_DEMO, cartella.Di("program/Melodie/Demo"));
    }
    std::string Deposte() const { return cartella.Di("Doc/Corvana/Melodie/Demo/"); }
    std::string Proprie() const { return cartella.Di("program/Melodie/Demo/"); }
    /// All are there, byte for byte, and nothing besides.
    void EsceIntera() const {
        std::size_t quante = 0;
        for (const auto& voce : fs::directory_iterator(Deposte())) {
            EXPECT_EQ(Contenuto(voce.path().string()), ByteDemo(voce.path().stem().string()));
            ++quante;
        }
        EXPECT_EQ(quante, prova::MelodieDemo().size());
        EXPECT_EQ(std::distance(fs::directory_iterator(cartella.Di("Doc/Corvana/Melodie")),
                                fs::directory_iterator()),
                  1);
    }
};

}  // namespace

TEST(DemoSuDisco, AreLaidWholeAndCanBeChanged) {
    BancoDeposito b;
    EXPECT_EQ(b.demo.AllApertura(), b.Deposte());
    b.EsceIntera();
    Scrivi(b.Deposte() + "Sakura.mel", "mine");
    EXPECT_EQ(b.demo.AllApertura(), b.Deposte());
    EXPECT_EQ(b.demo.ARichiesta(), b.Deposte());
    EXPECT_EQ(Contenuto(b.Deposte() + "Sakura.mel"), "mine");
}

TEST(DemoSuDisco, AFolderThatIsEmptyOrGoneIsLaidAgainOnRequest) {
    BancoDeposito b;
    b.demo.AllApertura();
    for (const bool via : {false, true}) {
        fs::remove_all(b.Deposte());
        if (!via) fs::create_directory(b.Deposte());
        EXPECT_EQ(b.demo.ARichiesta(), b.Deposte());
        b.EsceIntera();
    }
}

TEST(DemoSuDisco, HalfALayingIsPutAsideAndTheNextOneIsWhole) {
    BancoDeposito b;
    fs::create_directories(b.cartella.Di("Doc/Corvana/Melodie/Demo.nuova"));
    Scrivi(b.cartella.Di("Doc/Corvana/Melodie/Demo.nuova/Sakura.mel"), "half");
    Scrivi(b.cartella.Di("Doc/Corvana/Melodie/Demo.nuova/Old.mel.nuovo"), "half");
    EXPECT_EQ(b.demo.AllApertura(), b.Deposte());
    b.EsceIntera();
}

TEST(DemoSuDisco, ADiskThatFillsUpLeavesNothingAndTheProgramsOwnServe) {
    BancoDeposito b;
    {
        const DiscoPieno pieno(400);
        EXPECT_EQ(b.demo.AllApertura(), b.Proprie());
    }
    EXPECT_FALSE(fs::exists(b.cartella.Di("Doc/Corvana")));
    EXPECT_EQ(b.demo.AllApertura(), b.Deposte());
    b.EsceIntera();
}

TEST(DemoSuDisco, ANameThatIsTakenLeavesWhatHasItAndTheProgramsOwnServe) {
    BancoDeposito b;
    fs::create_directories(b.cartella.Di("Doc"));
    Scrivi(b.cartella.Di("Doc/Corvana"), "a file");
    EXPECT_EQ(b.demo.AllApertura(), b.Proprie());
    EXPECT_EQ(b.demo.ARichiesta(), b.Proprie());
    EXPECT_EQ(Contenuto(b.cartella.Di("Doc/Corvana")), "a file");
}

}  // namespace corvana::prova
