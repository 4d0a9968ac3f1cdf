// Every call of the whole program to its files fails in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <iostream>

#include "tests/program/faulty_evening.h"
#include "tests/support/seed.h"

namespace corvana::prova {

namespace {

using Op = Operazione;

/// What a box says of an error in the files, but for the system's words behind it.
std::string Numerato(const std::string& prima, int errore) {
    const bool pieno = errore == ENOSPC || errore == EDQUOT;
    const int numero = pieno ? 61 : errore == EIO ? 71 : errore;
    return prima + std::to_string(numero) + "\r\n";
}

enum class Detto {
    Numero,      ///< the error's number, a new line, the system's words
    Supporto,    ///< the same as it is told of a removable medium
    Mancante,    ///< as if it weren't there
    CeGia,       ///< somebody has the name
    SenzaDisco,  ///< there is no medium
    Testi,       ///< of the language
    Stato,       ///< of the settings
    SenzaStato,  ///< and there are none yet
    NonScritto,  ///< that they weren't made
    Recupero,    ///< of a melody that wasn't saved
};

struct Regola {
    const char* passo;
    Op operazione;
    const char* percorso;  ///< a part of it
    Detto detto;
    int ordine = 0;  ///< of those calls of the step, from 1; 0 for any
};

/// Of which failures the user is told. Of no other.
constexpr Regola regole[] = {
    {"start", Op::Leggi, "settings", Detto::SenzaStato, 1},
    {"start", Op::Scrivi, "settings", Detto::NonScritto},
    {"start", Op::Leggi, "settings", Detto::Stato},
    {"start again", Op::Leggi, "settings", Detto::Stato, 2},
    {"start again", Op::Leggi, "settings", Detto::Stato, 3},
    {"opening", Op::Leggi, "settings", Detto::Stato, 1},
    {"opening again", Op::Leggi, "settings", Detto::Stato, 1},
    {"the ear trainer", Op::Leggi, "settings", Detto::Stato},
    {"", Op::Leggi, ".csv", Detto::Testi},
    {"opening again", Op::Leggi, "unsaved", Detto::Recupero},
    {"saving under a new name", Op::ScriviSeLibero, ".mel", Detto::Numero},
    {"saving", Op::Scrivi, ".mel", Detto::Numero},
    {"saving in place of another", Op::Scrivi, ".mel", Detto::Numero},
    // Seen too late, it isn't overwritten.
    {"saving in place of another", Op::Esiste, ".mel", Detto::CeGia, 2},
    {"saving what was found", Op::ScriviSeLibero, ".mel", Detto::Numero},
    {"saving onto a medium", Op::Supporti, "", Detto::Supporto},
    {"saving onto a medium", Op::Scrivi, ".mel", Detto::Supporto},
    {"a new folder", Op::EsisteCartella, "", Detto::Mancante},
    {"a new folder", Op::CreaCartella, "", Detto::Numero},
    {"renaming", Op::RinominaSeLibero, "", Detto::Numero},
    {"deleting a folder", Op::EliminaCartella, "", Detto::Numero},
    {"deleting a melody", Op::Elimina, ".mel", Detto::Numero},
    {"importing", Op::Supporti, "", Detto::SenzaDisco},
    {"importing", Op::Elenca, "stick", Detto::Numero},
    {"copying", Op::Supporti, "", Detto::SenzaDisco},
    {"copying", Op::Leggi, ".mel", Detto::Numero},
    {"copying", Op::Scrivi, ".mel", Detto::Numero},
    {"loading", Op::Leggi, ".mel", Detto::Numero},
    {"loading a demonstration", Op::Leggi, ".mel", Detto::Numero},
};

/// How the box begins that tells of it; empty for none.
std::string Inizio(Detto detto, int errore) {
    switch (detto) {
        case Detto::Numero: return Numerato("", errore);
        case Detto::Supporto: return Numerato("Errore: ", errore);
        case Detto::Mancante: return Numerato("", ENOENT);
        case Detto::CeGia: return Numerato("", EEXIST);
        case Detto::SenzaDisco: return Numerato("", EIO);
        case Detto::Testi: return "Error Reading file!!!";
        case Detto::Stato: return "Error1 Opening key: " + std::to_string(errore);
        // That it isn't there is no news.
        case Detto::SenzaStato: return errore == ENOENT ? "" : Inizio(Detto::Stato, ENOENT);
        case Detto::NonScritto: return Inizio(Detto::Stato, ENOENT);
        case Detto::Recupero:
            return errore == ENOENT ? "" : "\r\n/stato/corvana/unsaved-melody.damaged";
    }
    return {};
}

std::string Atteso(const std::vector<ChiamataFile>& chiamate, std::size_t quale, int errore) {
    const ChiamataFile& questa = chiamate[quale];
    for (const Regola& r : regole) {
        const auto vale = [&r](const ChiamataFile& c) {
            return (*r.passo == 0 || c.passo == r.passo) && c.operazione == r.operazione &&
                   c.percorso.find(r.percorso) != std::string::npos;
        };
        const auto sua = chiamate.begin() + static_cast<std::ptrdiff_t>(quale);
        const auto prima =
            std::find_if(std::make_reverse_iterator(sua), chiamate.rend(),
                         [&](const ChiamataFile& c) { return c.passo != questa.passo; });
        const auto ordine = 1 + std::count_if(prima.base(), sua, vale);
        if (vale(questa) && (r.ordine == 0 || r.ordine == ordine)) return Inizio(r.detto, errore);
    }
    return {};
}

std::vector<std::string> DettiNel(const SeraConGuasti& sera, const std::string& passo) {
    std::vector<std::string> detti;
    for (const auto& [quando, testo] : sera.Detto())
        if (quando == passo) detti.push_back(testo);
    return detti;
}

/// What must tell of it came, and nothing else.
void EsceDetto(const SeraConGuasti& sera, const SeraConGuasti& sana, const std::string& passo,
               const std::string& atteso) {
    auto detti = DettiNel(sera, passo);
    for (const std::string& usuale : DettiNel(sana, passo))
        if (const auto trovato = std::find(detti.begin(), detti.end(), usuale);
            trovato != detti.end())
            detti.erase(trovato);
    if (atteso.empty()) {
        EXPECT_TRUE(detti.empty()) << detti.front();
        return;
    }
    EXPECT_FALSE(detti.empty()) << atteso;
    for (const std::string& detto : detti)
        EXPECT_TRUE(detto.starts_with(atteso)) << detto;
}

}  // namespace

TEST(SeraConGuasti, WithoutAFaultNothingIsLostAndNothingIsTold) {
    SeraConGuasti sera;
    EXPECT_EQ(sera.Vivi(), "");
    EXPECT_GT(sera.Chiamate().size(), 100U);
    for (const auto& [passo, detto] : sera.Detto())
        EXPECT_FALSE(detto.starts_with("Err") || isdigit(detto.front())) << passo << ": " << detto;
}

// Each with each fault in scripts/careless; here some of them, from the seed on.
TEST(SeraConGuasti, WhateverFailsNothingIsLostAndTheUserIsToldWhereHeMustKnow) {
    SeraConGuasti sana;
    ASSERT_EQ(sana.Vivi(), "");
    const auto& chiamate = sana.Chiamate();
    const int ogni = Eventi(0) > 0 ? 1 : 5;
    int numero = static_cast<int>(Seme()), sere = 0;
    for (std::size_t quale = 0; quale < chiamate.size(); ++quale)
        for (const GuastoIniettato& guasto : GuastiPossibili(chiamate[quale].operazione)) {
            if (++numero % ogni != 0) continue;
            SeraConGuasti sera(quale, guasto);
            ++sere;
            EXPECT_EQ(sera.Vivi(), "") << quale << ", " << chiamate[quale] << ": " << guasto;
            if (guasto.daAlloraInPoi) continue;
            SCOPED_TRACE(testing::Message() << quale << ", " << chiamate[quale] << ": " << guasto);
            EsceDetto(sera, sana, chiamate[quale].passo, Atteso(chiamate, quale, guasto.errore));
        }
    if (ogni == 1)
        std::cout << chiamate.size() << " calls, " << sere << " times two evenings with a fault\n";
}

}  // namespace corvana::prova
