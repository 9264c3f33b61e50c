#include "platform/fakes/MemoryExchange.h"

#include "platform/FileExchangeContract.h"

#include <map>

namespace veyrand::platform {

namespace {

class MemoryExchangeHarness {
public:
    FileExchange& exchange() { return m_exchange; }
    void put(const std::string& name, const std::string& text) { m_files[name] = text; }
    std::string contents(const std::string& name)
    {
        return m_exchange.saved()->name == name ? m_exchange.saved()->text : std::string();
    }
    void willChoose(const std::string& name)
    {
        m_exchange.choose(MemoryExchange::File { name, m_files[name] });
    }
    static void choose() { }
    static void cancel() { }
    void block() { m_exchange.setFault("the disk is full"); }

private:
    MemoryExchange m_exchange;
    std::map<std::string, std::string> m_files;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FileExchangeContract, MemoryExchangeHarness);

} // namespace veyrand::platform
