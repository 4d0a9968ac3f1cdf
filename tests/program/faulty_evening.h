// Two evenings with the whole program on a disk of which any call can be made to fail: the first as
// a newcomer, who ends it with a melody that isn't saved, the second with that melody. After each
// thing that the user does the program must hold all that he has written, or the disk must.
#pragma once

#include "tests/program/faulty_session.h"

namespace corvana::prova {

class SeraConGuasti {
public:
    SeraConGuasti();
    /// Call `quale` of both evenings, counted from 0, is to fail.
    SeraConGuasti(std::size_t quale, const GuastoIniettato& guasto);

    /// Both evenings. Empty, or what was lost or went on for ever.
    std::string Vivi();

    const std::vector<ChiamataFile>& Chiamate() const { return tavolo_.registro->chiamate; }
    const auto& Detto() const { return tavolo_.detti; }

private:
    void Prima();
    void Seconda();
    void ControllaRitrovata(const std::string& note);
    void ControllaFile();

    TavoloConGuasti tavolo_;
    std::string lasciata_;  ///< the soprano's notes at the end of the first evening
};

}  // namespace corvana::prova
