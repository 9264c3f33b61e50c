#include "platform/AlertsContract.h"
#include "platform/JournalContract.h"
#include "platform/MotionWishContract.h"
#include "platform/PreferencesContract.h"
#include "platform/RunLoopContract.h"
#include "platform/SoundsContract.h"
#include "platform/WindowContract.h"
#include "web/WebGame.h"

#include <emscripten/emscripten.h>
#include <nlohmann/json.hpp>

// The ports' contracts, kept by the browser's adapters on a page.

extern "C" {
double contracts_timer(); // until the timer asked for would fire, in milliseconds; below 0: none
void contracts_empty_store();
void contracts_load(void* store); // calls contracts_loaded for each text that was stored
void contracts_begin_sounds();
int contracts_is_heard();
}

namespace veyrand::platform {

namespace {

class WebRunLoopHarness {
public:
    RunLoop& loop() { return m_loop; }
    // A page cannot wait for its own timers, so they fire here when they are due.
    void pass(double seconds)
    {
        const double end = m_loop.now() + seconds;
        while (m_loop.now() < end) {
            fire();
        }
        fire();
    }

private:
    void fire()
    {
        const double wait = contracts_timer();
        if (wait >= 0.0 && wait < 1.0) {
            m_loop.runDueCalls();
        }
    }

    web::WebRunLoop m_loop;
};

// A store over what the page was handed.
class StoreHarness {
public:
    StoreHarness() { contracts_empty_store(); }
    web::WebStore& store() { return *m_store; }
    void reopenStore()
    {
        m_store = std::make_unique<web::WebStore>();
        contracts_load(m_store.get());
    }

private:
    std::unique_ptr<web::WebStore> m_store = std::make_unique<web::WebStore>();
};

class WebJournalHarness {
public:
    Journal& journal() { return m_store.store(); }
    void reopen() { m_store.reopenStore(); }
    void write(const std::string& name, const std::string& text)
    {
        m_store.store().put(name, text);
    }

private:
    StoreHarness m_store;
};

class WebPreferencesHarness {
public:
    WebPreferencesHarness() { load(); }
    Preferences& preferences() { return *m_preferences; }
    void reopen()
    {
        m_store.reopenStore();
        load();
    }

private:
    void load()
    {
        m_preferences = std::make_unique<web::WebPreferences>(m_store.store());
        EXPECT_EQ(m_preferences->load(), "");
    }

    StoreHarness m_store;
    std::unique_ptr<web::WebPreferences> m_preferences;
};

class WebAlertsHarness {
public:
    Alerts& alerts() { return m_alerts; }
    void tickBox() { m_isTicked = true; }
    void press(AlertAnswer::Button button)
    {
        m_alerts.answer({ .button = button, .suppressed = m_isTicked });
    }
    void close() { press(AlertAnswer::Button::Alternate); } // as the page reads it

private:
    web::WebAlerts m_alerts;
    bool m_isTicked = false;
};

class WebWindowHarness {
public:
    Window& window() { return m_window; }
    void settle() { }

private:
    web::WebWindow m_window;
};

class WebMotionWishHarness {
public:
    MotionWish& motionWish() { return m_wish; }
    void wish(bool less) { m_wish.set(less); }

private:
    web::WebMotionWish m_wish;
};

// What a page plays is heard later than it is asked for, and nothing can wait for it here. So the
// page runs the cases twice: it notes what is asked of the sounds, plays that in its own time, and
// then has the answers ready.
class WebSoundsHarness {
public:
    WebSoundsHarness() { contracts_begin_sounds(); }
    Sounds& sounds() { return m_sounds; }
    bool isHeard() { return contracts_is_heard() != 0; }

private:
    web::WebSounds m_sounds;
};

// What failed, for the page.
class Failures final : public ::testing::EmptyTestEventListener {
public:
    void OnTestPartResult(const ::testing::TestPartResult& result) override
    {
        if (result.failed()) {
            m_words.push_back(std::string(result.file_name() != nullptr ? result.file_name() : "")
                + ':' + std::to_string(result.line_number()) + ": " + result.summary());
        }
    }
    [[nodiscard]] const std::vector<std::string>& words() const { return m_words; }

private:
    std::vector<std::string> m_words;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Web, RunLoopContract, WebRunLoopHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Web, JournalContract, WebJournalHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Web, PreferencesContract, WebPreferencesHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Web, AlertsContract, WebAlertsHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Web, WindowContract, WebWindowHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Web, MotionWishContract, WebMotionWishHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Web, SoundsContract, WebSoundsHarness);

// A fault of a transaction is told by the next call that writes, once.
TEST(WebStore, ToldOfAFaultTellsItOnce)
{
    web::WebStore store;
    ASSERT_EQ(store.begin("a.txt", { "one" }), "");
    store.failed("there is no room left");
    EXPECT_EQ(store.append("a.txt", "two"), "there is no room left");
    EXPECT_EQ(store.append("a.txt", "three"), "");
    EXPECT_EQ(store.read("a.txt").contents, "one\ntwo\nthree\n");
}

TEST(WebStore, ClosedForWritingStoresNothing)
{
    StoreHarness harness;
    ASSERT_EQ(harness.store().begin("a.txt", { "one" }), "");
    harness.store().closeForWriting();
    ASSERT_EQ(harness.store().append("a.txt", "two"), "");
    EXPECT_TRUE(harness.store().remove("a.txt"));
    harness.reopenStore();
    EXPECT_EQ(harness.store().read("a.txt").contents, "one\n");
}

TEST(WebPreferences, KeptAsideWhereTheyCannotBeRead)
{
    for (const char* const rubbish : { "", "{", "[]", "7", "\"text\"", "{\"a\":1}x" }) {
        web::WebStore store;
        store.load("preferences.json", rubbish);
        web::WebPreferences preferences(store);
        EXPECT_EQ(preferences.load(), "preferences.json.damaged-1") << rubbish;
        EXPECT_EQ(store.texts().at("preferences.json.damaged-1"), rubbish);
        EXPECT_FALSE(store.texts().contains("preferences.json"));
    }
}

} // namespace veyrand::platform

extern "C" {

EMSCRIPTEN_KEEPALIVE void contracts_loaded(void* store, const char* name, const char* text)
{
    static_cast<veyrand::web::WebStore*>(store)->load(name, text);
}

// {"ran": how many, "failures": [words]}, of the cases that a filter of GoogleTest's names.
EMSCRIPTEN_KEEPALIVE const char* contracts_run(const char* filter)
{
    static std::string answer;
    int argumentCount = 1;
    std::string program = "contracts";
    char* arguments[] = { program.data(), nullptr };
    ::testing::InitGoogleTest(&argumentCount, arguments);
    GTEST_FLAG_SET(filter, filter);
    auto* const failures = new veyrand::platform::Failures; // the listeners own it
    ::testing::UnitTest::GetInstance()->listeners().Append(failures);
    const int status = RUN_ALL_TESTS();
    answer = nlohmann::json {
        { "ran", ::testing::UnitTest::GetInstance()->test_to_run_count() }, { "status", status },
        { "failures", failures->words() }
    }.dump();
    return answer.c_str();
}
}
