// Gives a test program the regional settings of its environment, as a program with windows takes
// them at its start. Nothing else need be done than to link it.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string_view>

namespace corvana::prova {

namespace {

class AmbienteRegionale final : public testing::Environment {
public:
    void SetUp() override {
        const char* presa = std::setlocale(LC_ALL, "");
        const char* chiesta = std::getenv("LC_ALL");
        if (!chiesta || !std::string_view(chiesta).starts_with("it_IT")) return;
        EXPECT_NE(presa, nullptr) << "the machine has no " << chiesta;
        EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    }
};

const testing::Environment* const ambiente =
    testing::AddGlobalTestEnvironment(new AmbienteRegionale);

}  // namespace

}  // namespace corvana::prova
