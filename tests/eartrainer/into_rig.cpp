#include "tests/eartrainer/into_rig.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace corvana::prova {

namespace {

/// Each text is the name of its variable, so that a test reads like the screen.
void PonTestiInto(TestiLingua& t) {
    t.msgPrimoLimite = "primo limite";
    t.msgSecondoLimite = "secondo limite";
    t.msgScegliRif = "scegli rif";
    t.msgAscolta = "ascolta";
    t.msgFermato = "fermato";
    t.msgInt = "intervallo?";
    t.msgAcc = "accordo?";
    t.msgPremiStart = "premi start";
    t.msgTastoPrima = "<";
    t.msgTastoDopo = ">";
    t.msgAccTroppoAlto = "troppo alto";
    t.msgStrettoSotto = "stretto sotto";
    t.msgStrettoSopra = "stretto sopra";
    t.msgRifFuori = "rif fuori";
    t.ttRifSi = "rif si";
    t.ttRifNo = "rif no";
    t.ttMelodico = "melodico";
    t.ttMisto = "misto";
    t.ttArmonico = "armonico";
    t.ttIntAmmesso = "int ammesso";
    t.ttIntEscluso = "int escluso";
    t.ttAccAmmesso = "acc ammesso";
    t.ttAccEscluso = "acc escluso";
    t.ttMostraTasti = "tt mostra";
    t.ttNascondiTasti = "tt nascondi";
    t.ttToAmmessa = "to ammessa";
    t.ttToEsclusa = "to esclusa";
    t.capRifFisso = "fisso";
    t.capRifVariabile = "variabile";
    t.capMostraTasti = "mostra";
    t.capNascondiTasti = "nascondi";
    t.capSoloBianchi = "solo bianchi";
    t.capTuttiTasti = "tutti";
}

/// In seconds, to the tenth where it is a whole one, else as finely as a difference could matter.
std::string Istante(double secondi) {
    const double decimi = std::round(secondi * 10);
    std::array<char, 32> testo{};
    const bool tondo = std::fabs(secondi * 10 - decimi) < 1e-6;
    std::snprintf(testo.data(), testo.size(), tondo ? "%.1f" : "%.6f",
                  tondo ? std::fabs(decimi) / 10 : secondi);
    return testo.data();
}

std::vector<int> QualiAccesi(const std::deque<Etichetta>& etichette) {
    std::vector<int> accesi;
    for (std::size_t i = 0; i < etichette.size(); ++i)
        if (etichette[i].BackStyle() == fondoOpaco) accesi.push_back(static_cast<int>(i));
    return accesi;
}

}  // namespace

BancoInto::BancoInto(Casuale& altra, std::initializer_list<PaginaInto> pagine)
    : finestra(Con(altra),
               {[] { return "into"; }, [] { return "strumenti"; }, [] { return "aiuto"; },
                [this] {
                    ++scelte;
                    if (nelPicker) nelPicker();
                    // It closes as soon as it has come.
                    Evento chiude;
                    chiude.fatto = Fatto::Chiudi;
                    const double adesso = orologio.Adesso();
                    Quando(adesso, [this, chiude] { coda.Aggiungi(Fatta(chiude, "")); });
                    finestre.MostraModale(picker);
                }}) {
    PonTestiInto(globali.testi);
    globali.StrumentoGlobale = 40;
    for (const PaginaInto pagina : pagine)
        globali.PaginaInto.at(static_cast<std::size_t>(pagina)) = true;
    suono.ApriMidi(dispositivoPredefinito);
}

bool BancoInto::Vai(double fine) {
    Fine(fine);
    bool aperta = true;
    SvolgiCopione([&] {
        finestre.FinoAllUltima([&] {
            finestre.Mostra(principale);
            finestre.MostraModale(finestra);
            aperta = false;
        });
    });
    return aperta;
}

Suonati BancoInto::Note(double da) const {
    Suonati note;
    for (const auto& [istante, messaggio] : uscita.messaggi) {
        if ((messaggio & 0xFFU) != 0x90 || istante < da - 1e-9) continue;
        note.push_back(Istante(istante - da) + " " + std::to_string((messaggio >> 8U) & 0xFFU) +
                       " " + std::to_string(messaggio >> 16U));
    }
    return note;
}

Suonati BancoInto::Messaggi() const {
    Suonati tutti;
    for (const auto& [istante, messaggio] : uscita.messaggi) {
        const unsigned stato = messaggio & 0xFFU;
        const std::string dato = std::to_string((messaggio >> 8U) & 0xFFU);
        const unsigned velocita = messaggio >> 16U;
        const std::string che = stato == 0xC0   ? "program " + dato
                                : stato != 0x90 ? "status " + std::to_string(stato)
                                : velocita == 0 ? "off " + dato
                                                : "on " + dato + " " + std::to_string(velocita);
        tutti.push_back(Istante(istante) + " " + che);
    }
    return tutti;
}

std::vector<int> BancoInto::Programmi() const {
    std::vector<int> programmi;
    for (const auto& [programma, niente] : uscita.ConStato(0xC0))
        programmi.push_back(programma);
    return programmi;
}

std::vector<int> BancoInto::Accesi() const {
    return QualiAccesi(finestra.telaio.tastiera.lb);
}

std::vector<int> BancoInto::Segnati() const {
    return QualiAccesi(finestra.telaio.tastiera.lbr);
}

std::string BancoInto::Punti() const {
    const PunteggioInto& punti = finestra.telaio.punti;
    return punti.txtResatte.Caption() + " " + punti.txtRerrate.Caption() + " " +
           punti.lblPerc.Caption();
}

std::string BancoInto::Testo(const std::string& nome) const {
    return dynamic_cast<const ConCaption&>(*finestra.Trova(nome)).Caption();
}

}  // namespace corvana::prova
