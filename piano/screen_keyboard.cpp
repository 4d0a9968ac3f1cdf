#include "piano/screen_keyboard.h"

#include "core/notation.h"

namespace corvana {

namespace {

constexpr Colore coloreTasto = Rgb(192, 192, 255);
constexpr Colore coloreBarra = Rgb(0, 255, 0);
constexpr Colore coloreDoCentrale = Rgb(0, 0, 255);

void Poni(Controllo& controllo, const Rettangolo& posto) {
    controllo.Left = posto.left;
    controllo.Top = posto.top;
    controllo.Width = posto.width;
    controllo.Height = posto.height;
}

void Prepara(Etichetta& etichetta, const char* stile, Colore colore) {
    etichetta.stile = stile;
    etichetta.BackColor = colore;
}

}  // namespace

TastieraSchermo::TastieraSchermo(Form& form, std::string nome, Controllo* padre, Corredo corredo,
                                 const Rettangolo& posto)
    : figura(form, std::move(nome), padre), Lbdoc(form, "Lbdoc", &figura) {
    figura.stile = "tastiera";
    for (int tasto = 0; tasto < tastiTastiera; ++tasto)
        FaiTasto(tasto);
    for (int tasto = 0; corredo == Corredo::TastiEBarre && tasto < tastiTastiera; ++tasto)
        FaiBarra(tasto);
    Prepara(Lbdoc, "docentrale", coloreDoCentrale);
    PonPosto(posto);
    Lbdoc.ToolTipText = "Do Centrale";
    PonNomi(false);
}

void TastieraSchermo::FaiTasto(int tasto) {
    Etichetta& fatto = lb.emplace_back(figura.Finestra(), "lb" + std::to_string(tasto), &figura);
    Prepara(fatto, "tasto", coloreTasto);
    Accendi(fatto, false);
}

void TastieraSchermo::FaiBarra(int tasto) {
    Etichetta& fatta = lbr.emplace_back(figura.Finestra(), "lbr" + std::to_string(tasto), &figura);
    Prepara(fatta, "barretta", coloreBarra);
    Accendi(fatta, false);
}

void TastieraSchermo::PonPosto(const Rettangolo& posto) {
    Poni(figura, posto);
    const auto poni = [&posto](Controllo& controllo, const Rettangolo& suo) {
        Poni(controllo, SuFigura(suo, posto.width));
    };
    for (std::size_t tasto = 0; tasto < lb.size(); ++tasto)
        poni(lb[tasto], PostoTasto(static_cast<int>(tasto)));
    for (std::size_t tasto = 0; tasto < lbr.size(); ++tasto)
        poni(lbr[tasto], PostoBarra(static_cast<int>(tasto)));
    poni(Lbdoc, PostoDoCentrale());
}

void TastieraSchermo::sw(std::int16_t nota, std::uint8_t acceso) {
    Accendi(lb.at(static_cast<std::size_t>(nota - notaPiuBassa)), acceso == 1);
}

void TastieraSchermo::SpegniTasti() {
    for (Etichetta& tasto : lb)
        Accendi(tasto, false);
}

void TastieraSchermo::SpegniBarre() {
    for (Etichetta& barra : lbr)
        Accendi(barra, false);
}

void TastieraSchermo::PonNomi(bool anglo) {
    for (std::size_t tasto = 0; tasto < lb.size(); ++tasto)
        lb[tasto].Caption = NomeNota(static_cast<std::int16_t>(notaPiuBassa + tasto), anglo);
}

void Accendi(Etichetta& etichetta, bool acceso) {
    etichetta.BackStyle = acceso ? fondoOpaco : fondoTrasparente;
}

}  // namespace corvana
