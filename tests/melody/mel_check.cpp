#include "tests/melody/mel_check.h"

#include "melody/code_page.h"
#include "melody/edits.h"
#include "melody/ticks.h"
#include "melody/tokens.h"
#include "tests/melody/mel_content.h"
#include "tests/melody/utf8.h"

namespace corvana::prova {

namespace {

using Testi = std::vector<std::string>;

void Aggiungi(Testi& tutti, const Testi& altri) {
    tutti.insert(tutti.end(), altri.begin(), altri.end());
}

Testi TestiLetti(const LetturaMel& letta) {
    Testi tutti(letta.soprano.begin(), letta.soprano.end());
    tutti.push_back(letta.tempo);
    Aggiungi(tutti, letta.strumento);
    Aggiungi(tutti, letta.riferimenti);
    for (const BloccoMel& blocco : letta.blocchi) {
        tutti.push_back(blocco.strumento);
        Aggiungi(tutti, blocco.testi);
    }
    return tutti;
}

Testi DurateLette(const LetturaMel& letta) {
    Testi durate{letta.soprano[1]};
    for (const BloccoMel& blocco : letta.blocchi)
        if (blocco.testi.size() > 1) durate.push_back(blocco.testi[1]);
    return durate;
}

std::string GuastoDeiTesti(const LetturaMel& letta, char altroSeparatore) {
    for (const std::string& testo : TestiLetti(letta)) {
        if (!EUtf8(testo)) return "a text isn't UTF-8";
        if (DaCodicePagina(InCodicePagina(testo)) != testo) return "a text isn't of the code page";
        if (testo.find_first_of("\r\n") != std::string::npos) return "a text has a line break";
    }
    for (const std::string& durate : DurateLette(letta))
        if (durate.find(altroSeparatore) != std::string::npos)
            return "durations have the other separator";
    return "";
}

std::string GuastoDellaForma(const LetturaMel& letta) {
    if (letta.blocchi.size() > 3) return "more than three blocks";
    for (std::size_t i = 0; i < letta.blocchi.size(); ++i) {
        const BloccoMel& blocco = letta.blocchi[i];
        const bool ultimo = i + 1 == letta.blocchi.size();
        if (blocco.voce < 1 || blocco.voce >= numeroVoci) return "a block of no voice";
        if (blocco.testi.size() != 3 && !(ultimo && letta.guasto))
            return "a block that lacks texts";
    }
    if (!letta.guasto && letta.strumento.empty()) return "no instrument and no fault";
    if (!letta.riferimenti.empty() && !letta.conRiferimenti) return "rows of no bookmark line";
    if (letta.riferimenti.size() == 1) return "a bookmark line of one row";
    return "";
}

std::string GuastoDiRitorno(const LetturaMel& letta, char separatore) {
    const auto contenuto = Contenuto(letta);
    if (!contenuto) return "";
    const auto dinuovo = Contenuto(LeggiMel(contenuto->Byte(), separatore));
    if (!dinuovo) return "what was written can't be read";
    return *dinuovo == *contenuto ? "" : "what was written is read otherwise";
}

/// Tokens may be any texts: a walk over them ends with a sum or with a fault, nothing else.
std::string GuastoDelPasso(const LetturaMel& letta) {
    VoceMelodia voce;
    voce.testoNote = letta.soprano[0];
    voce.testoDurate = letta.soprano[1];
    voce.testoAttributi = letta.soprano[2];
    try {
        Spezza(voce);
        const long note = voce.numeroNote;
        const Tick somma = SommaTick(voce.durateVoce, note - 1);
        const PuntoVoce inizio = CercaPunto(voce.durateVoce, note, 0);
        const PuntoVoce meta = CercaPunto(voce.durateVoce, note, somma / 2);
        if (inizio.trascorsi != 0) return "a walk of no ticks has gone on";
        if (meta.posizione > note) return "a walk has gone beyond the end";
        if (note > 0) TogliTokenDopo(voce, meta.posizione - 1);
    } catch (const Guasto&) {
        return "";
    }
    return "";
}

std::string Controlla(std::string_view byte, char separatore) {
    const LetturaMel letta = LeggiMel(byte, separatore);
    for (const std::string& guasto :
         {GuastoDellaForma(letta), GuastoDeiTesti(letta, separatore == ',' ? '.' : ','),
          GuastoDiRitorno(letta, separatore), GuastoDelPasso(letta)})
        if (!guasto.empty()) return guasto;
    return "";
}

}  // namespace

std::string ControllaMel(std::string_view byte) {
    const std::string conVirgola = Controlla(byte, ',');
    return conVirgola.empty() ? Controlla(byte, '.') : conVirgola;
}

}  // namespace corvana::prova
