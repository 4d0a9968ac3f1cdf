// Every system call of the file layer fails in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <functional>
#include <map>

#include "core/real_files.h"
#include "tests/core/temporary_folder.h"
#include "tests/support/system_calls.h"

namespace corvana::prova {

namespace {

const std::string vecchio = "the old content";
const std::string nuovo(20'000, 'n');
const std::string lungo(200'000, 'l');  // read in several pieces

std::string Scritto(const std::string& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

const std::map<std::string, std::vector<int>> errori = {
    {"open", {EACCES, EROFS, ENOSPC, EMFILE, ENAMETOOLONG, EINTR}},
    {"close", {EIO, ENOSPC, EDQUOT}},
    {"read", {EIO}},
    {"write", {ENOSPC, EIO, EDQUOT, EFBIG}},
    {"fsync", {EIO, ENOSPC}},
    {"rename", {EACCES, EROFS, ENOSPC, EIO}},
    {"renameat2", {EACCES, EROFS, ENOSPC, EIO}},
    {"unlink", {EACCES, EROFS, EIO}},
};

struct Caso {
    std::size_t quale = 0;
    std::string chiamata;
    GuastoSistema guasto;
};

std::ostream& operator<<(std::ostream& dove, const Caso& caso) {
    return dove << "call " << caso.quale << ", " << caso.chiamata << ", errno "
                << caso.guasto.errore << (caso.guasto.daAlloraInPoi ? " from then on" : "");
}

/// Each call that `opera` makes with each error that fits, once and from then on.
std::vector<Caso> Casi(const std::vector<std::string>& chiamate) {
    std::vector<Caso> casi;
    for (std::size_t i = 0; i < chiamate.size(); ++i)
        for (const int errore : errori.at(chiamate[i]))
            for (const bool poi : {false, true})
                casi.push_back({i, chiamate[i], {errore, false, false, poi}});
    return casi;
}

/// A folder with a file whose calls fail.
struct BancoGuasti {
    CartellaProvvisoria cartella;
    FileReali file;
    const std::string percorso = cartella.Di("a");
    int errore = 0;
    std::vector<std::string> chiamate;

    explicit BancoGuasti(const std::string& contenuto = vecchio) {
        std::ofstream(percorso, std::ios::binary) << contenuto;
    }

    void Fa(const std::function<int(BancoGuasti&)>& opera, std::size_t quale = 0,
            std::optional<GuastoSistema> guasto = {}) {
        ChiamateSistema sistema(quale, guasto);
        errore = opera(*this);
        chiamate = sistema.Fatte();
    }
};

std::vector<std::string> ChiamateDi(const std::function<int(BancoGuasti&)>& opera) {
    BancoGuasti b;
    b.Fa(opera);
    EXPECT_EQ(b.errore, 0);
    return b.chiamate;
}

/// The old content or the new one, whole, and which it is is told; no temporary file is left, but
/// where taking it away fails too.
void EsceIntero(const std::string& dove, const std::function<int(BancoGuasti&)>& opera,
                const std::string& prima) {
    const auto casi = Casi(ChiamateDi(opera));
    EXPECT_GT(casi.size(), 20U);
    for (const Caso& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso);
        BancoGuasti b;
        b.Fa(opera, caso.quale, caso.guasto);
        // That it is fixed in its folder can't be had of every medium.
        EXPECT_EQ(Scritto(b.cartella.Di(dove)), b.errore == 0 ? nuovo : prima);
        EXPECT_TRUE(b.errore == 0 || b.errore == caso.guasto.errore) << b.errore;
        EXPECT_EQ(Scritto(b.percorso), dove == "a" && b.errore == 0 ? nuovo : vecchio);
        const int file = Scritto(b.cartella.Di("b")).empty() ? 1 : 2;
        EXPECT_TRUE(caso.guasto.daAlloraInPoi || b.cartella.Quanti() == file);
    }
}

}  // namespace

TEST(ChiamateDelSistema, AWriteIsMadeOfTheseCallsInThisOrder) {
    EXPECT_EQ(ChiamateDi([](BancoGuasti& b) { return b.file.ScriviAtomico(b.percorso, nuovo); }),
              (std::vector<std::string>{"open", "write", "fsync", "close", "rename", "open",
                                        "fsync", "close"}));
}

TEST(ChiamateDelSistema, AWriteThatFailsAnywhereLeavesTheOldFileWhole) {
    EsceIntero(
        "a", [](BancoGuasti& b) { return b.file.ScriviAtomico(b.percorso, nuovo); }, vecchio);
}

TEST(ChiamateDelSistema, AWriteUnderAFreeNameThatFailsAnywhereLeavesNothingThere) {
    EsceIntero(
        "b", [](BancoGuasti& b) { return b.file.ScriviSeLibero(b.cartella.Di("b"), nuovo); }, "");
}

TEST(ChiamateDelSistema, AWriteThatTheSystemDoesInPiecesIsWhole) {
    for (const bool sempre : {false, true}) {
        BancoGuasti b;
        const std::string corto(500, 'n');
        b.Fa([&](BancoGuasti& q) { return q.file.ScriviAtomico(q.percorso, corto); }, 1,
             GuastoSistema{0, true, false, sempre});
        EXPECT_EQ(b.errore, 0);
        EXPECT_EQ(Scritto(b.percorso), corto);
    }
}

TEST(ChiamateDelSistema, ASystemThatTakesNothingIsNoReasonToWaitForEver) {
    BancoGuasti b;
    b.Fa([](BancoGuasti& q) { return q.file.ScriviAtomico(q.percorso, nuovo); }, 1,
         GuastoSistema{0, false, true, true});
    EXPECT_EQ(b.errore, EIO);
    EXPECT_EQ(Scritto(b.percorso), vecchio);
}

TEST(ChiamateDelSistema, AReadThatFailsAnywhereGivesNothing) {
    const auto leggi = [](BancoGuasti& b) {
        std::string contenuto = "before";
        const int errore = b.file.Leggi(b.percorso, contenuto);
        EXPECT_EQ(contenuto, errore == 0 ? lungo : "");
        return errore;
    };
    BancoGuasti sano(lungo);
    sano.Fa(leggi);
    EXPECT_GT(std::count(sano.chiamate.begin(), sano.chiamate.end(), "read"), 2);
    for (const Caso& caso : Casi(sano.chiamate)) {
        SCOPED_TRACE(testing::Message() << caso);
        BancoGuasti b(lungo);
        b.Fa(leggi, caso.quale, caso.guasto);
        // What was read is whole, whatever the closing says.
        EXPECT_EQ(b.errore, caso.chiamata == "close" ? 0 : caso.guasto.errore);
    }
}

TEST(ChiamateDelSistema, AReadThatTheSystemDoesInPiecesIsWhole) {
    BancoGuasti b;
    std::string contenuto;
    b.Fa([&](BancoGuasti& q) { return q.file.Leggi(q.percorso, contenuto); }, 1,
         GuastoSistema{0, true, false, true});
    EXPECT_EQ(b.errore, 0);
    EXPECT_EQ(contenuto, vecchio);
}

TEST(ChiamateDelSistema, ANameThatCantBeChangedAndAFileThatCantBeTakenAwayStay) {
    const auto rinomina = [](BancoGuasti& b) {
        return b.file.RinominaSeLibero(b.percorso, b.cartella.Di("b"));
    };
    const auto elimina = [](BancoGuasti& b) { return b.file.Elimina(b.percorso); };
    for (const std::function<int(BancoGuasti&)>& opera :
         {std::function<int(BancoGuasti&)>(rinomina), std::function<int(BancoGuasti&)>(elimina)})
        for (const Caso& caso : Casi(ChiamateDi(opera))) {
            SCOPED_TRACE(testing::Message() << caso);
            BancoGuasti b;
            b.Fa(opera, caso.quale, caso.guasto);
            EXPECT_EQ(Scritto(b.percorso), b.errore == 0 ? "" : vecchio);
            EXPECT_TRUE(b.errore == 0 || b.errore == caso.guasto.errore) << b.errore;
        }
}

}  // namespace corvana::prova
