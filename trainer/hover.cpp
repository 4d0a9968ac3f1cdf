// What sinks or lights up under the pointer in the main window.
#include "core/effects.h"
#include "core/text.h"
#include "trainer/corvana_main.h"

namespace corvana {

namespace {

constexpr Colore rosso = 255;
constexpr Colore blu = 0xFF0000;
constexpr const char* nomeEsci = "cmdesci";
constexpr const char* nomeAiuto = "lblmn";
constexpr const char* nomeStriscia = "ShToolbar";

void DipingiStriscia(Controllo& striscia, bool evidenziata) {
    if (evidenziata)
        Gradiente(striscia, 0, 197, 218, 213, 255, 255, "ds", "d2");
    else
        Gradiente(striscia, 154, 0, 223, 255, 213, 255, "ds", "d2");
}

}  // namespace

void CorvanaMainF::CollegaHover() {
    const auto entra = [this](Controllo& controllo, const std::string& nome) {
        controllo.MouseMove = [this, nome](const Evento&) { EntraHover(nome); };
    };
    for (Figura& bottone : ToolButton)
        entra(bottone, Minuscolo(bottone.Name));
    entra(cmdEsci, nomeEsci);
    entra(cmdEscibg, nomeEsci);
    entra(lblMn, nomeAiuto);
    entra(ShToolbar, nomeStriscia);
    const auto lascia = [this](const Evento&) { LasciaHover(); };
    MouseMove = img.MouseMove = Regolo.MouseMove = frToolBar.MouseMove = lascia;
}

void CorvanaMainF::EntraHover(const std::string& nome) {
    StatoHover& hover = a_.globali.hover;
    if (hover.HoverNome != nome) LasciaHover();
    hover.HoverNome = nome;
    MostraHover("over");
}

void CorvanaMainF::LasciaHover() {
    MostraHover("out");
    a_.globali.hover.HoverNome.clear();
}

void CorvanaMainF::MostraHover(std::string_view stato) {
    StatoHover& hover = a_.globali.hover;
    const bool sopra = stato == "over";
    for (Figura& bottone : ToolButton)
        if (hover.HoverNome == Minuscolo(bottone.Name)) EffettoImmagine(hover, bottone, stato);
    if (hover.HoverNome == nomeEsci)
        EffettoPulsante(hover, cmdEscibg, cmdEsci, stato, sopra ? rosso : blu);
    if (hover.HoverNome == nomeAiuto) lblMn.BorderStyle = sopra ? 1 : 0;
    if (hover.HoverNome == nomeStriscia) DipingiStriscia(ShToolbar, sopra);
}

void CorvanaMainF::DipingiSfondi() {
    Gradiente(PercMet, 0, 197, 218, 213, 255, 255, "ds", "d2");
    Gradiente(PercBg, 175, 255, 26, 255, 95, 85, "ab", "i");
    Gradiente(bgConta, 239, 135, 31, 255, 228, 255, "ab", "d2");
    Gradiente(bgRis[0], 140, 245, 5, 255, 255, 0, "ab", "d2");
    Gradiente(bgRis[1], 255, 95, 255, 255, 255, 255, "ab", "d2");
    Gradiente(bgRis[2], 255, 165, 69, 255, 245, 255, "ab", "d2");
    Gradiente(bgRis[3], 117, 239, 255, 197, 255, 255, "ab", "d2");
    Gradiente(bgRis[4], 207, 213, 207, 245, 255, 186, "ab", "d2");
    DipingiStriscia(ShToolbar, false);
}

}  // namespace corvana
