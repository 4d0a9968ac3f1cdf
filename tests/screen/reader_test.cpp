// What can be done by one who hears the program and doesn't see it.
#include <array>
#include <optional>
#include <sstream>

#include "tests/screen/blind_user.h"

namespace corvana::prova {

namespace {

/// How far the place lies above the lowest line of its staff, and which staff it is.
struct Luogo {
    bool chiaveSol = false;
    int passo = 0;
};

int Numero(const std::string& testo, const std::string& parola) {
    return std::stoi(testo.substr(testo.find(parola) + parola.size()));
}

/// What a learner makes of the words.
std::optional<Luogo> Capisci(const std::string& detto) {
    Luogo luogo{.chiaveSol = detto.starts_with("Chiave di Sol, ")};
    if (!luogo.chiaveSol && !detto.starts_with("Chiave di Fa, ")) return {};
    const auto contiene = [&](const char* parola) { return detto.find(parola) != detto.npos; };
    if (contiene(", linea ")) return Luogo{luogo.chiaveSol, 2 * Numero(detto, ", linea ") - 2};
    if (contiene(", spazio ")) return Luogo{luogo.chiaveSol, 2 * Numero(detto, ", spazio ") - 1};
    int fuori = 1;
    if (contiene("taglio addizionale ")) fuori = 2 * Numero(detto, "taglio addizionale ");
    if (contiene("oltre il taglio ")) fuori = 2 * Numero(detto, "oltre il taglio ") + 1;
    if (contiene("sopra il rigo")) return Luogo{luogo.chiaveSol, 8 + fuori};
    if (contiene("sotto il rigo")) return Luogo{luogo.chiaveSol, -fuori};
    return {};
}

/// The lowest line is Mi with the one clef, Sol with the other; 0 is Do.
int Nota(const Luogo& luogo) {
    return ((luogo.chiaveSol ? 2 : 4) + luogo.passo + 70) % 7;
}

/// The keys of the answers, those of the keypad by their place.
constexpr std::array risposte = {"d", "87", "f", "88", "g", "89", "h"};

std::string Tasto(int nota) {
    return risposte.at(static_cast<std::size_t>(nota % 7));
}

}  // namespace

TEST_F(Cieco, DoesAReadingDrillFromStartToItsResults) {
    VaiA("Start");
    std::string detto = Ascolta("space");
    const auto primo = Capisci(detto);
    ASSERT_TRUE(primo) << detto;
    EXPECT_EQ(Trova("Chiave di").nome, detto) << "the staff says something else";
    EXPECT_EQ(Ascolta(Tasto(Nota(*primo) + 1)), "Risposte errate 1");
    EXPECT_EQ(Trova("Chiave di").nome, detto) << "a wrong answer changes the note";
    const Oggetto esatte = Trova("Risposte esatte");
    for (int giuste = 1; giuste <= 3; ++giuste) {
        const auto luogo = Capisci(detto);
        ASSERT_TRUE(luogo) << detto;
        detto = Ascolta(Tasto(Nota(*luogo)));
        EXPECT_TRUE(Lettore().Aspetta([&] {
            return Lettore().Testo(esatte) == std::to_string(giuste);
        })) << Lettore().Testo(esatte);
    }
    EXPECT_EQ(Lettore().Testo(Trova("Percentuale")), "75.00%");
    const std::string esito = Ascolta("space");
    for (const char* parola : {"Risposte esatte: 3", "Risposte errate: 1", "Risposte date: 4",
                               "75.00%", "Tempo impiegato: 0:"})
        EXPECT_NE(esito.find(parola), esito.npos) << parola << " isn't in " << esito;
    EXPECT_EQ(Trova("Tempo impiegato").ruolo, "label");
    EXPECT_EQ(Trova("Pentagramma").ruolo, "graphic");
}

TEST_F(Cieco, DoesAPitchDrillFromItsRangeToItsScore) {
    DalMenu("Riconoscimento altezza nota");
    ASSERT_NE(Programma().AspettaFinestra("frmInto"), 0U);
    // A range is there from the beginning: the octave from middle C.
    VaiA("Premi Start per cominciare");
    VaiA("Con nota di riferimento");
    Batti("space");
    VaiA("Start");
    Batti("space");
    EXPECT_NE(Detto("Ascolta la nota e fai clic sul suo tasto"), "");
    VaiA("Mostra/Nascondi la nota suonata");
    EXPECT_TRUE(Ascolta("space").starts_with("Nome della nota suonata, "));
    const std::string nota = Trova("Nome della nota suonata").descrizione;
    VaiA("Do 4");
    // The range is an octave with both its Do.
    int errate = 0;
    for (std::string esito; !esito.starts_with("Risposte esatte 1") && errate < 2;) {
        while (Lettore().Fuoco().nome != nota + (errate == 0 ? " 4" : " 5"))
            Muovi("Right");
        Lettore().Dimentica();
        Batti("space");
        esito = Detto("Risposte e");
        if (esito.starts_with("Risposte errate")) ++errate;
    }
    EXPECT_LE(errate, nota == "Do" ? 1 : 0) << nota;
    EXPECT_EQ(Trova("Percentuale di risposte esatte").descrizione,
              errate == 0 ? "100.00%" : "50.00%");
    Muovi("End");
    Batti("space");
    EXPECT_NE(Detto("Risposte errate " + std::to_string(errate + 1)), "");
    VaiA("Stop");
    Batti("space");
    EXPECT_NE(Detto("Fermo: reimposta l'estensione o premi Start"), "");
    Batti("alt+F4");
    AspettaFuoco("Start");
}

}  // namespace corvana::prova
