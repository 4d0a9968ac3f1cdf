// Two evenings with the whole program on a disk of which any call can be made to fail: the first as
// a newcomer, who ends it with a melody that isn't saved, the second with that melody. After each
// thing that the user does the program must hold all that he has written, or the disk must.
#pragma once

#include <memory>

#include "tests/program/program_rig.h"
#include "tests/support/faulty_files.h"

namespace corvana {
class frmComposer;
}

namespace corvana::prova {

class SeraConGuasti {
public:
    SeraConGuasti();
    /// Call `quale` of both evenings, counted from 0, is to fail.
    SeraConGuasti(std::size_t quale, const GuastoIniettato& guasto);

    /// Both evenings. Empty, or what was lost or went on for ever.
    std::string Vivi();

    const std::vector<ChiamataFile>& Chiamate() const { return registro_->chiamate; }
    /// What the boxes said, with what the user was doing.
    using Detti = std::vector<std::pair<std::string, std::string>>;
    const Detti& Detto() const { return detti_; }

private:
    class Sessione;

    void Prima();
    void Seconda();
    void ControllaRitrovata(const std::string& note);
    void ControllaFile();
    void Difetto(const std::string& cosa);

    FileInMemoria disco_;
    std::shared_ptr<RegistroFile> registro_ = std::make_shared<RegistroFile>();
    Detti detti_;
    std::string difetto_;
    std::string lasciata_;  ///< the soprano's notes at the end of the first evening
};

}  // namespace corvana::prova
