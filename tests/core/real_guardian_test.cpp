// The guardian with its thread, over files of the disk and over some that stall.
#include "core/real_guardian.h"

#include <gtest/gtest.h>

#include <future>

#include "core/real_files.h"
#include "tests/core/temporary_folder.h"
#include "tests/support/faulty_files.h"
#include "tests/support/memory_files.h"

namespace corvana::prova {

namespace {

constexpr double maiDaSe = 1e6;  ///< seconds: nothing is written unless it is asked for
constexpr double pazienza = 60;  ///< to end a hang

std::function<std::string()> Byte(std::string questi) {
    return [questi = std::move(questi)] { return questi; };
}

struct BancoCustode {
    explicit BancoCustode(TempiCustode tempi = {maiDaSe, pazienza})
        : custode(std::make_unique<FileReali>(), cartella.Di("stato/melodia"), tempi) {}

    std::string Contenuto(const std::string& nome = "stato/melodia") {
        std::string byte;
        return file.Leggi(cartella.Di(nome), byte) == 0 ? byte : "no such file";
    }

    CartellaProvvisoria cartella;
    FileReali file;
    CustodeReale custode;
};

/// Writes only when it is let, as a disk that has stalled.
class FileFermi final : public ArchivioFile {
public:
    struct Comune {
        std::promise<void> scrive, lascia, finito;
        FileInMemoria file;
        int scritture = 0;
    };
    explicit FileFermi(std::shared_ptr<Comune> comune) : comune_(std::move(comune)) {}
    ~FileFermi() override { comune_->finito.set_value(); }

    int ScriviAtomico(const std::string& percorso, const std::string& contenuto) override {
        if (comune_->scritture++ == 0) {
            comune_->scrive.set_value();
            comune_->lascia.get_future().wait();
        }
        return comune_->file.ScriviAtomico(percorso, contenuto);
    }
    bool Esiste(const std::string& p) override { return comune_->file.Esiste(p); }
    bool EsisteCartella(const std::string& p) override { return comune_->file.EsisteCartella(p); }
    int Leggi(const std::string& p, std::string& c, std::size_t limite) override {
        return comune_->file.Leggi(p, c, limite);
    }
    int Rinomina(const std::string& p, const std::string& n) override {
        return comune_->file.Rinomina(p, n);
    }
    int RinominaSeLibero(const std::string& p, const std::string& n) override {
        return comune_->file.RinominaSeLibero(p, n);
    }
    int CreaCartella(const std::string& p) override { return comune_->file.CreaCartella(p); }
    int Elimina(const std::string& p) override { return comune_->file.Elimina(p); }
    int EliminaCartella(const std::string& p) override { return comune_->file.EliminaCartella(p); }
    int Elenca(const std::string&, std::vector<VoceCartella>&) override { return 0; }
    std::vector<std::string> Supporti() override { return {}; }

private:
    std::shared_ptr<Comune> comune_;
};

}  // namespace

TEST(CustodeReale, WhatIsToBeKeptIsOnTheDiskOnceItIsFixedAndItsFolderIsMade) {
    BancoCustode b;
    b.custode.Tieni(Byte("prima"));
    b.custode.Fissa();
    EXPECT_EQ(b.Contenuto(), "prima");
}

TEST(CustodeReale, OfSeveralTheLastCounts) {
    BancoCustode b;
    int chiamate = 0;
    for (int volta = 0; volta < 100; ++volta)
        b.custode.Tieni([&chiamate, volta] {
            ++chiamate;
            return std::to_string(volta);
        });
    b.custode.Fissa();
    EXPECT_EQ(b.Contenuto(), "99");
    EXPECT_EQ(chiamate, 1);
}

TEST(CustodeReale, ItIsWrittenByItselfAfterTheDelay) {
    BancoCustode b({0, pazienza});
    std::promise<void> chiamata;
    b.custode.Tieni([&] {
        chiamata.set_value();
        return "da sé";
    });
    EXPECT_EQ(chiamata.get_future().wait_for(std::chrono::duration<double>(pazienza)),
              std::future_status::ready);
    b.custode.Fissa();
    EXPECT_EQ(b.Contenuto(), "da sé");
}

TEST(CustodeReale, WhatIsLetGoIsTakenAwayWithoutBeingAskedForTwice) {
    BancoCustode b;
    b.custode.Tieni(Byte("prima"));
    b.custode.Fissa();
    b.custode.Lascia();
    b.custode.Fissa();
    EXPECT_EQ(b.Contenuto(), "no such file");
    std::string byte;
    EXPECT_EQ(b.custode.Ritrova(byte), ENOENT);
}

/// A kept melody whose file can't be taken away for now.
struct CustodeOstinato {
    std::shared_ptr<RegistroFile> registro = std::make_shared<RegistroFile>();
    FileInMemoria file;
    std::optional<CustodeReale> custode;

    CustodeOstinato() {
        registro->quale = 1;
        registro->guasto = GuastoIniettato{.errore = EIO, .daAlloraInPoi = true};
        custode.emplace(std::make_unique<FileConGuasti>(file, registro), "/melodia",
                        TempiCustode{maiDaSe, pazienza});
        custode->Tieni(Byte("prima"));
        custode->Fissa();
        custode->Lascia();
        custode->Fissa();
        EXPECT_TRUE(file.Esiste("/melodia"));
        // It may have been tried more than once by now; the next time it succeeds.
        registro->guasto.reset();
    }
};

TEST(CustodeReale, WhatCantBeTakenAwayIsTriedAgainWhenItIsFixed) {
    CustodeOstinato ostinato;
    ostinato.custode->Fissa();
    EXPECT_FALSE(ostinato.file.Esiste("/melodia"));
}

TEST(CustodeReale, WhatCantBeTakenAwayIsTriedAgainAtTheEnd) {
    CustodeOstinato ostinato;
    ostinato.custode.reset();
    EXPECT_FALSE(ostinato.file.Esiste("/melodia"));
}

TEST(CustodeReale, ThatNothingIsThereToBeTakenAwayIsNoFailure) {
    auto registro = std::make_shared<RegistroFile>();
    FileInMemoria file;
    CustodeReale custode(std::make_unique<FileConGuasti>(file, registro), "/melodia",
                         {maiDaSe, pazienza});
    custode.Lascia();
    custode.Fissa();
    custode.Fissa();
    EXPECT_EQ(registro->chiamate.size(), 1U);
}

TEST(CustodeReale, WhatIsLetGoBeforeItWasWrittenIsNeverWritten) {
    BancoCustode b;
    b.custode.Tieni(Byte("prima"));
    b.custode.Lascia();
    b.custode.Fissa();
    EXPECT_EQ(b.Contenuto(), "no such file");
}

TEST(CustodeReale, ItsEndDoesWhatIsStillToBeDone) {
    CartellaProvvisoria cartella;
    const std::string percorso = cartella.Di("melodia");
    {
        CustodeReale custode(std::make_unique<FileReali>(), percorso, {maiDaSe, pazienza});
        custode.Tieni(Byte("ultima"));
    }
    std::string byte;
    EXPECT_EQ(FileReali().Leggi(percorso, byte), 0);
    EXPECT_EQ(byte, "ultima");
}

TEST(CustodeReale, TheNextOneFindsWhatWasKept) {
    BancoCustode b;
    b.custode.Tieni(Byte("rimasta"));
    b.custode.Fissa();
    CustodeReale altro(std::make_unique<FileReali>(), b.cartella.Di("stato/melodia"));
    std::string byte;
    EXPECT_EQ(altro.Ritrova(byte), 0);
    EXPECT_EQ(byte, "rimasta");
}

TEST(CustodeReale, WhatIsPutAsideTakesThePlaceOfWhatWasThereBefore) {
    BancoCustode b;
    for (const char* questi : {"vecchia", "nuova"}) {
        b.custode.Tieni(Byte(questi));
        b.custode.Fissa();
        EXPECT_EQ(b.custode.MettiDaParte(), b.cartella.Di("stato/melodia.damaged"));
        EXPECT_EQ(b.Contenuto(), "no such file");
        EXPECT_EQ(b.Contenuto("stato/melodia.damaged"), questi);
    }
    EXPECT_EQ(b.custode.MettiDaParte(), "");
}

TEST(CustodeReale, AFolderThatCantBeMadeIsPassedOverInSilence) {
    CartellaProvvisoria cartella;
    FileReali().ScriviAtomico(cartella.Di("stato"), "a file");
    CustodeReale custode(std::make_unique<FileReali>(), cartella.Di("stato/melodia"),
                         {maiDaSe, pazienza});
    custode.Tieni(Byte("prima"));
    custode.Fissa();
    custode.Lascia();
    custode.Fissa();
    EXPECT_EQ(cartella.Quanti(), 1);
}

TEST(CustodeReale, WhatFailedIsTriedAgainWhenItIsToBeFixed) {
    BancoCustode b;
    b.file.ScriviAtomico(b.cartella.Di("stato"), "a file in the way");
    b.custode.Tieni(Byte("prima"));
    b.custode.Fissa();
    b.file.Elimina(b.cartella.Di("stato"));
    b.custode.Fissa();
    EXPECT_EQ(b.Contenuto(), "prima");
}

TEST(CustodeReale, ADiskThatStallsHoldsNobodyUpAndIsLeftBehind) {
    const auto comune = std::make_shared<FileFermi::Comune>();
    {
        CustodeReale custode(std::make_unique<FileFermi>(comune), "/stato/melodia", {0, 0.001});
        custode.Tieni(Byte("prima"));
        comune->scrive.get_future().wait();
        custode.Tieni(Byte("seconda"));
        custode.Fissa();
        custode.Lascia();
        custode.Fissa();
    }
    comune->lascia.set_value();
    // Who was left behind goes by itself.
    comune->finito.get_future().wait();
}

TEST(CustodeReale, WhatCameWhileADiskStalledIsDoneWhenItGoesOn) {
    const auto comune = std::make_shared<FileFermi::Comune>();
    {
        CustodeReale custode(std::make_unique<FileFermi>(comune), "/stato/melodia", {0, pazienza});
        custode.Tieni(Byte("prima"));
        comune->scrive.get_future().wait();
        custode.Tieni(Byte("seconda"));
        custode.Tieni(Byte("terza"));
        comune->lascia.set_value();
        custode.Fissa();
    }
    EXPECT_EQ(comune->file.contenuti["/stato/melodia"], "terza");
    EXPECT_LE(comune->scritture, 3);
}

TEST(CustodeReale, WhoNeverAsksForAnythingHasNoThread) {
    CustodeReale custode(std::make_unique<FileReali>(), "/none/such");
    custode.Fissa();
    std::string byte;
    EXPECT_EQ(custode.Ritrova(byte), ENOENT);
}

}  // namespace corvana::prova
