#include "core/real_guardian.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <filesystem>
#include <mutex>
#include <utility>

#include "core/guardian_shift.h"

namespace corvana {

namespace {

using Secondi = std::chrono::duration<double>;
using Cronografo = std::chrono::steady_clock;

/// What is longer was put there by mistake.
constexpr std::size_t limiteTenuto = 64UL * 1024 * 1024;

double Secondo() {
    return Secondi(Cronografo::now().time_since_epoch()).count();
}

Cronografo::time_point All(double secondo) {
    return Cronografo::time_point(
        std::chrono::duration_cast<Cronografo::duration>(Secondi(std::max(secondo, 0.0))));
}

}  // namespace

struct CustodeReale::Posto {
    Posto(std::unique_ptr<ArchivioFile> archivio, std::string dove, TempiCustode quali)
        : file(std::move(archivio)), percorso(std::move(dove)), tempi(quali) {}

    /// The thread's whole life.
    void Lavora();
    /// False when there is nothing to do and nothing will come.
    bool AspettaLavoro(std::unique_lock<std::mutex>& guardia);
    /// False when it is worth another try.
    bool Fai(const std::function<std::string()>& questi) const;
    int Scrivi(const std::string& contenuto) const;
    /// Without waiting for its time, and what failed once anew.
    void Affretta();

    const std::unique_ptr<ArchivioFile> file;
    const std::string percorso;
    const TempiCustode tempi;

    std::mutex blocco;
    std::condition_variable lavoro, fatto;
    std::function<std::string()> byte;  ///< to be kept; without any, the file goes
    TurnoCustode turno{tempi.ritardo};
    unsigned long chieste = 0, fatte = 0;
    bool fine = false;    ///< nothing more will come
    bool finito = false;  ///< the thread has nothing more to do with this
};

void CustodeReale::Posto::Lavora() {
    std::unique_lock guardia(blocco);
    while (AspettaLavoro(guardia)) {
        const unsigned long questa = chieste;
        const std::function<std::string()> questi = byte;
        turno.Prendi();
        guardia.unlock();
        const bool riuscito = Fai(questi);
        guardia.lock();
        fatte = questa;
        if (!riuscito) turno.Fallito(Secondo());
        fatto.notify_all();
    }
    finito = true;
    fatto.notify_all();
}

bool CustodeReale::Posto::AspettaLavoro(std::unique_lock<std::mutex>& guardia) {
    while (!(fine && fatte == chieste)) {
        if (fine || turno.Scaduto(Secondo())) return true;
        if (turno.Atteso())
            lavoro.wait_until(guardia, All(turno.Scadenza()));
        else
            lavoro.wait(guardia);
    }
    return false;
}

bool CustodeReale::Posto::Fai(const std::function<std::string()>& questi) const {
    if (!questi) {
        const int errore = file->Elimina(percorso);
        return errore == 0 || errore == ENOENT;
    }
    try {
        return Scrivi(questi()) == 0;
    } catch (const std::exception&) {
        return false;
    }
}

int CustodeReale::Posto::Scrivi(const std::string& contenuto) const {
    const int errore = file->ScriviAtomico(percorso, contenuto);
    if (errore != ENOENT) return errore;
    file->CreaCartella(std::filesystem::path(percorso).parent_path().string());
    return file->ScriviAtomico(percorso, contenuto);
}

void CustodeReale::Posto::Affretta() {
    if (!turno.Atteso()) return;
    if (fatte == chieste) ++chieste;
    turno.Affretta();
    lavoro.notify_one();
}

CustodeReale::CustodeReale(std::unique_ptr<ArchivioFile> file, std::string percorso,
                           TempiCustode tempi)
    : posto_(std::make_shared<Posto>(std::move(file), std::move(percorso), tempi)) {}

CustodeReale::~CustodeReale() {
    if (!filo_.joinable()) return;
    std::unique_lock guardia(posto_->blocco);
    posto_->fine = true;
    posto_->Affretta();
    posto_->lavoro.notify_one();
    const bool finito = posto_->fatto.wait_for(guardia, Secondi(posto_->tempi.pazienza),
                                               [this] { return posto_->finito; });
    guardia.unlock();
    finito ? filo_.join() : filo_.detach();
}

void CustodeReale::Chiedi(std::function<std::string()> byte, bool subito) {
    if (!filo_.joinable()) filo_ = std::thread([posto = posto_] { posto->Lavora(); });
    {
        const std::lock_guard guardia(posto_->blocco);
        posto_->byte.swap(byte);
        ++posto_->chieste;
        subito ? posto_->turno.Affretta() : posto_->turno.Cambia(Secondo());
    }
    posto_->lavoro.notify_one();
}

void CustodeReale::Tieni(std::function<std::string()> byte) {
    lasciato_ = false;
    Chiedi(std::move(byte), false);
}

void CustodeReale::Lascia() {
    lasciato_ = true;
    Chiedi({}, true);
}

void CustodeReale::Fissa() {
    std::unique_lock guardia(posto_->blocco);
    posto_->Affretta();
    posto_->fatto.wait_for(guardia, Secondi(posto_->tempi.pazienza),
                           [this] { return posto_->fatte == posto_->chieste; });
}

int CustodeReale::Ritrova(std::string& byte) {
    // A slow disk may not have come to it yet.
    if (lasciato_) return ENOENT;
    return posto_->file->Leggi(posto_->percorso, byte, limiteTenuto);
}

std::string CustodeReale::MettiDaParte() {
    std::string dove = posto_->percorso + ".damaged";
    return posto_->file->Rinomina(posto_->percorso, dove) == 0 ? dove : "";
}

}  // namespace corvana
