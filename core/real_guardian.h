// The guardian of a file on the machine's disk, which works on a thread of its own. That one starts
// with the first thing to do, and a disk that never answers leaves it behind.
#pragma once

#include <memory>
#include <thread>

#include "core/files.h"
#include "core/guardian.h"

namespace corvana {

struct TempiCustode {
    double ritardo = 2;     ///< seconds from the first change to the writing
    double pazienza = 0.5;  ///< seconds that its caller waits for it at most, where he must wait
};

class CustodeReale final : public Custode {
public:
    /// `file` is used by this guardian alone. What is above `percorso` is made when it is needed.
    CustodeReale(std::unique_ptr<ArchivioFile> file, std::string percorso, TempiCustode tempi = {});
    /// Does what was asked for, unless that takes too long.
    ~CustodeReale() override;

    void Tieni(std::function<std::string()> byte) override;
    void Lascia() override;
    void Fissa() override;
    int Ritrova(std::string& byte) override;
    std::string MettiDaParte() override;

private:
    struct Posto;
    void Chiedi(std::function<std::string()> byte, bool subito);

    std::shared_ptr<Posto> posto_;  ///< what the thread works with, which may outlive the guardian
    std::thread filo_;
    bool lasciato_ = false;  ///< this run has let go of what is there
};

}  // namespace corvana
