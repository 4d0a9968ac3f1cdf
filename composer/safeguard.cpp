#include "composer/safeguard.h"

#include <cerrno>
#include <memory>

namespace corvana {

Salvaguardia::Salvaguardia(const Ambiente& ambiente, const StatoComposer& stato, Copia copia)
    : a_(ambiente), stato_(stato), copia_(std::move(copia)) {}

Salvaguardia::~Salvaguardia() {
    Smetti();
}

void Salvaguardia::Inizia() {
    if (!a_.custode) return;
    guarda_ = true;
    a_.pompa.PonSguardo([this] { Guarda(); });
}

void Salvaguardia::Smetti() {
    if (std::exchange(guarda_, false)) a_.pompa.PonSguardo({});
}

std::optional<MelodiaTenuta> Salvaguardia::Ritrova() {
    if (!a_.custode) return {};
    std::string byte;
    const int errore = a_.custode->Ritrova(byte);
    if (errore == ENOENT) return {};
    std::optional<MelodiaTenuta> melodia;
    if (errore == 0) melodia = LeggiTenuta(byte);
    if (melodia) {
        ultima_ = *melodia;
        tenuta_ = true;
    } else if (const std::string dove = a_.custode->MettiDaParte(); !dove.empty()) {
        avviso_ = a_.globali.testi.msgRecuperoIlleggibile + "\r\n" + dove;
    }
    return melodia;
}

void Salvaguardia::Guarda() {
    if (!guarda_) return;
    if (!stato_.lblModificato.Visible()) {
        if (std::exchange(tenuta_, false)) a_.custode->Lascia();
        return;
    }
    if (!copia_(ultima_) && tenuta_) return;
    tenuta_ = true;
    a_.custode->Tieni([melodia = std::make_shared<const MelodiaTenuta>(ultima_)] {
        return ScriviTenuta(*melodia);
    });
}

void Salvaguardia::Conserva() {
    Guarda();
    if (guarda_) a_.custode->Fissa();
}

void Salvaguardia::Finisci() {
    if (std::exchange(tenuta_, false)) {
        a_.custode->Lascia();
        a_.custode->Fissa();
    }
    Smetti();
}

}  // namespace corvana
