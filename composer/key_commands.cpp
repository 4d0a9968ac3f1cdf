#include "composer/key_commands.h"

namespace corvana {

namespace {

constexpr int f4 = 115, f5 = 116, f6 = 117, f7 = 118, f8 = 119, f9 = 120, f11 = 122, f12 = 123;

constexpr std::array frecce = {vk::destra, vk::sinistra, vk::su, vk::giu};

}  // namespace

ComandiDaTastiera::ComandiDaTastiera(const Ambiente& ambiente, StatoComposer& stato,
                                     PannelloTasti& tasti, VicineComandi vicine)
    : a_(ambiente), stato_(stato), tasti_(tasti), vicine_(std::move(vicine)) {}

void ComandiDaTastiera::Esamina() {
    if (Insiste()) vicine_.playRitardo();
    for (std::size_t i = 0; i < frecce.size() && !fineTastiera; ++i) {
        const bool premuto = a_.finestre.Tasti().Premuto(frecce[i]);
        if (premuto == giu_[i]) continue;
        giu_[i] = premuto;
        AlCambio(i, premuto);
    }
    if (!fineTastiera) tasti_.EsaminaPiano();
}

bool ComandiDaTastiera::Insiste() const {
    return a_.finestre.Tasti().Premuto(f4);
}

void ComandiDaTastiera::AlCambio(std::size_t freccia, bool premuto) {
    const int codice = frecce[freccia];
    const bool inVerticale = codice == vk::su || codice == vk::giu;
    if (inVerticale) return vicine_.muoviCursore(premuto ? "Premuta" : "Rilasciata", codice);
    if (!premuto) return RilascioTasti();
    TastiFunzione(codice == vk::destra ? f6 : f5);
    vicine_.fuocoInsNota();
}

void ComandiDaTastiera::Premi(int codice) {
    TastiFunzione(codice);
    tasti_.PremiPiano(codice);
}

void ComandiDaTastiera::Lascia(int codice) {
    if (codice == f5 || codice == f6) RilascioTasti();
    tasti_.LasciaPiano(codice);
}

void ComandiDaTastiera::TastiFunzione(int codice) {
    const StatoInserimento& inserimento = stato_.inserimento;
    switch (codice) {
        case f5: return PremiTasto(TastoASinistra(tasti_.tastoCorrente));
        case f6: return PremiTasto(TastoADestra(tasti_.tastoCorrente));
        case f7: return vicine_.premiFigura(FiguraPrecedente(inserimento.figuraAttiva));
        case f8: return vicine_.premiFigura(FiguraSeguente(inserimento.figuraAttiva));
        case f9: return vicine_.play();
        case f11:
            vicine_.nascondiAccento();
            return vicine_.premiAttributo(BottoneAttributoSeguente(inserimento.attributoAttivo));
        case f12:
            if (!stato_.inEsecuzione) vicine_.insPausa();
            return;
        default: return;
    }
}

void ComandiDaTastiera::PremiTasto(const PassoTasto& passo) {
    tasti_.tastoCorrente = passo.tasto;
    if (passo.premuto) vicine_.premiTasto(passo.tasto);
}

void ComandiDaTastiera::RilascioTasti() {
    if (tasti_.tastoCorrente != nessunTasto) vicine_.lasciaTasto(tasti_.tastoCorrente);
}

}  // namespace corvana
