#include "tests/composer/composer_rig.h"

#include <algorithm>
#include <cmath>
#include <system_error>

#include "core/text.h"
#include "melody/ticks.h"
#include "tests/support/open_window.h"

namespace corvana::prova {

namespace {

/// What ends every play that isn't a step: a note off on all keys, the lowest first.
constexpr std::uint32_t primoSpento = 0x90 | 36U << 8;
constexpr std::size_t spenti = 240;

/// Between two rounds, in seconds.
constexpr double pausaGiri = 0.502;
/// What sums of many ticks may be off by, in seconds.
constexpr double arrotondamento = 1e-6;

void PonTesti(TestiLingua& testi) {
    testi.TxtMelodiaIntera = "Tutta";
    testi.prmNomeMelodia = "nome?";
    testi.titSalvaConNome = "salva con nome";
    testi.msgNomeMelodiaErrato = "nome errato";
    testi.msgMelodiaEsiste = "esiste ";
    testi.msgSostituirla = "sostituire?";
    testi.msgSalvataSuA = "salvata";
    testi.msgDiscoPieno = "disco pieno";
    testi.msgDiscoNonPronto = "disco non pronto";
    testi.msgFileDanneggiato = "danneggiato";
    testi.msgUscireSenzaSalvare = "uscire?";
    testi.msgRecuperoIlleggibile = "illeggibile";
}

}  // namespace

std::ostream& operator<<(std::ostream& dove, const Mandato& m) {
    return dove << "{" << m.tick << ", " << m.canale << ", " << m.nota << ", " << m.velocita << "}";
}

std::string ParoleSistema(int errore) {
    return std::generic_category().message(errore);
}

BancoComposer::BancoComposer(char separatore) : BancoComposer(file, separatore) {}

BancoComposer::BancoComposer(ArchivioFile& archivio, char separatore)
    : BancoComposer(archivio, separatore, std::nullopt) {}

BancoComposer::BancoComposer(Rimasto rimasto, char separatore)
    : BancoComposer(file, separatore, std::move(rimasto.byte)) {}

BancoComposer::BancoComposer(ArchivioFile& archivio, char separatore,
                             std::optional<std::string> rimasto)
    : finestra(Con(archivio, casuale),
               {[] { return "Piano"; }, [] { return "Organo"; }, [this] { ++playFiniti; }}) {
    custode.rimasto = std::move(rimasto);
    globali.SeparatoreDecimale = separatore;
    PonTesti(globali.testi);
    file.cartelle.insert("/programma/Melodie/Demo");
    suono.ApriMidi(-1);
    ApriSenzaCiclo(finestre, pompa, coda, finestra);
}

void BancoComposer::Voce(std::size_t voce, const std::string& note, const std::string& durate,
                         const std::string& attributi) {
    const std::string attiva = melodia.voceAttiva;
    melodia.voceAttiva = nomiVoci[voce];
    VoceMelodia& v = melodia.voci[voce];
    v.testoNote = note;
    v.testoDurate = durate;
    v.testoAttributi = attributi;
    finestra.voci.AggiornaVoce();
    finestra.voci.MostraNoteVoce();
    melodia.voceAttiva = attiva;
}

void BancoComposer::Voce(std::size_t voce, const std::string& note, const std::string& durata) {
    std::string durate;
    std::string attributi;
    for (const char c : note) {
        if (c != ';') continue;
        durate += durata + ";";
        attributi += "n;";
    }
    Voce(voce, note, durate, attributi);
}

void BancoComposer::Tratto(int prima, int ultima) {
    VoceMelodia& v = melodia.voci[soprano];
    v.primaNota = static_cast<std::int16_t>(prima - 1);
    v.ultimaNota = static_cast<std::int16_t>(ultima - 1);
    finestra.voci.lblNini.Text = std::to_string(prima);
    finestra.voci.lblNfine.Text = std::to_string(ultima);
}

void BancoComposer::PonFile(const std::string& nome, const std::string& byte) {
    file.contenuti[globali.percorsoCorrente + nome + ".mel"] = byte;
    finestra.archivio.ListaFD();
    Scegli(nome);
}

void BancoComposer::Scegli(const std::string& riga) {
    const Righe& righe = finestra.archivio.List1.List();
    const auto trovata = std::find(righe.begin(), righe.end(), riga);
    finestra.archivio.List1.ListIndex =
        trovata == righe.end() ? -1 : static_cast<int>(trovata - righe.begin());
}

void BancoComposer::Subito(Fatto fatto, const std::string& controllo, int valore) {
    Evento evento;
    evento.fatto = fatto;
    evento.valore = valore;
    coda.Aggiungi(Fatta(evento, controllo));
    pompa.PompaEventi();
}

std::vector<std::pair<int, int>> BancoComposer::Programmi() const {
    std::vector<std::pair<int, int>> programmi;
    for (const auto& [istante, messaggio] : uscita.messaggi)
        if ((messaggio & 0xF0U) == 0xC0U)
            programmi.emplace_back(static_cast<int>(messaggio & 0x0FU) + 1,
                                   static_cast<int>(messaggio >> 8 & 0xFFU));
    return programmi;
}

std::string BancoComposer::ContenutoFile(const std::string& nome) const {
    const auto trovato = file.contenuti.find(globali.percorsoCorrente + nome + ".mel");
    return trovato == file.contenuti.end() ? "no such file" : trovato->second;
}

void BancoComposer::Suona() {
    Suona([this] { finestra.play.cmdPlay_Click(); });
}

void BancoComposer::Suona(const std::function<void()>& comando) {
    uscita.messaggi.clear();
    inizio_ = pompa.Adesso();
    comando();
    fine_ = pompa.Adesso();
    const auto& messaggi = uscita.messaggi;
    fineMessaggi_ = messaggi.size();
    if (fineMessaggi_ >= spenti && messaggi[fineMessaggi_ - spenti].messaggio == primoSpento)
        fineMessaggi_ -= spenti;
}

double BancoComposer::DurataTick() const {
    return (MsPerTick(melodia.tempo) + granularitaSleep) / 1000.0;
}

/// Those from the instant `inizio`, which begins tick 1, to before the instant `fine`.
Mandati BancoComposer::MessaggiTra(double inizio, double fine) const {
    Mandati mandati;
    for (std::size_t i = 0; i < fineMessaggi_; ++i) {
        const auto& [istante, messaggio] = uscita.messaggi[i];
        if ((messaggio & 0xF0U) != 0x90U || istante < inizio || istante >= fine) continue;
        mandati.push_back({static_cast<int>(std::lround((istante - inizio) / DurataTick())) + 1,
                           static_cast<int>(messaggio & 0x0FU) + 1,
                           static_cast<int>(messaggio >> 8 & 0xFFU),
                           static_cast<int>(messaggio >> 16 & 0xFFU)});
    }
    return mandati;
}

Mandati BancoComposer::Messaggi() const {
    return MessaggiTra(inizio_, perSempre);
}

Mandati BancoComposer::Messaggi(int canale) const {
    Mandati mandati = Messaggi();
    std::erase_if(mandati, [&](const Mandato& m) { return m.canale != canale; });
    return mandati;
}

Mandati BancoComposer::MessaggiDelGiro(int giro, int tick) const {
    const double durata = tick * DurataTick() + pausaGiri;
    const double inizio = inizio_ + (giro - 1) * durata;
    return MessaggiTra(inizio - arrotondamento, inizio + durata - arrotondamento);
}

int BancoComposer::TickPassati() const {
    return static_cast<int>(std::lround((fine_ - inizio_) / DurataTick()));
}

void BancoComposer::CliccaNelTick(int tick, const std::string& controllo) {
    Clicca(pompa.Adesso() + (tick - 0.5) * DurataTick(), controllo);
}

void BancoComposer::NelTick(int tick, OrologioVirtuale::Passo gesto) {
    Quando(pompa.Adesso() + (tick - 0.5) * DurataTick(), std::move(gesto));
}

}  // namespace corvana::prova
