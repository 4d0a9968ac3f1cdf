#include <gtest/gtest.h>
#include <jack/jack.h>

#include "sound/outputs/jack_access.h"

namespace corvana::prova {
namespace {

/// A server as its library shows it, without ports; while it lives there is no other.
class ServerFinto {
public:
    ServerFinto() { attuale = this; }
    ServerFinto(const ServerFinto&) = delete;
    ServerFinto& operator=(const ServerFinto&) = delete;
    ~ServerFinto() { attuale = nullptr; }

    bool muore = false;  ///< as soon as a client can hear of it
    int aperti = 0, chiusi = 0;

    static inline ServerFinto* attuale = nullptr;
};

TEST(AccessoJack, ASearchLeavesNoClientBehind) {
    ServerFinto server;
    const auto accesso = std::make_shared<AccessoJack>();
    for (int volta = 1; volta <= 3; ++volta) {
        EXPECT_TRUE(accesso->Elenca().empty());
        EXPECT_EQ(server.aperti, volta);
        EXPECT_EQ(server.chiusi, volta);
    }
}

TEST(AccessoJack, AServerThatDiesAsItIsEnteredLeavesNoClientBehindEither) {
    ServerFinto server;
    server.muore = true;
    const auto accesso = std::make_shared<AccessoJack>();
    EXPECT_TRUE(accesso->Elenca().empty());
    EXPECT_EQ(accesso->Apri("a port"), nullptr);
    EXPECT_EQ(server.aperti, 2);
    EXPECT_EQ(server.chiusi, 2);
}

}  // namespace
}  // namespace corvana::prova

using corvana::prova::ServerFinto;

// The linker's names of what is wrapped.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl50-cpp)
extern "C" {
jack_client_t* __real_jack_client_open(const char* nome, jack_options_t come, jack_status_t* stato,
                                       ...);
int __real_jack_client_close(jack_client_t* cliente);
void __real_jack_on_shutdown(jack_client_t* cliente, JackShutdownCallback fine, void* chi);
int __real_jack_set_process_callback(jack_client_t* cliente, JackProcessCallback opera, void* chi);
const char** __real_jack_get_ports(jack_client_t* cliente, const char* nome, const char* tipo,
                                   unsigned long come);

jack_client_t* __wrap_jack_client_open(const char* nome, jack_options_t come, jack_status_t* stato,
                                       ...) {
    if (!ServerFinto::attuale) return __real_jack_client_open(nome, come, stato);
    ++ServerFinto::attuale->aperti;
    return reinterpret_cast<jack_client_t*>(ServerFinto::attuale);
}

int __wrap_jack_client_close(jack_client_t* cliente) {
    if (!ServerFinto::attuale) return __real_jack_client_close(cliente);
    ++ServerFinto::attuale->chiusi;
    return 0;
}

void __wrap_jack_on_shutdown(jack_client_t* cliente, JackShutdownCallback fine, void* chi) {
    if (!ServerFinto::attuale) return __real_jack_on_shutdown(cliente, fine, chi);
    if (ServerFinto::attuale->muore) fine(chi);
}

int __wrap_jack_set_process_callback(jack_client_t* cliente, JackProcessCallback opera, void* chi) {
    return ServerFinto::attuale ? 0 : __real_jack_set_process_callback(cliente, opera, chi);
}

const char** __wrap_jack_get_ports(jack_client_t* cliente, const char* nome, const char* tipo,
                                   unsigned long come) {
    return ServerFinto::attuale ? nullptr : __real_jack_get_ports(cliente, nome, tipo, come);
}
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl50-cpp)
