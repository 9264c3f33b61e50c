#include "headless/GalleryResults.h"
#include "headless/Tour.h"
#include "platform/TextMetrics.h"

namespace veyrand::test {

// Letters wider than anybody's, with which every text comes to the end of its room, or so narrow
// that each is as large as it may be.
class OtherLetters final : public platform::TextMetrics {
public:
    explicit OtherLetters(double width)
        : m_width(width)
    {
    }
    [[nodiscard]] platform::Size preferredFrameSize(std::string_view text) const override
    {
        const platform::Size even = m_even.preferredFrameSize(text);
        return { .width = m_width * even.width, .height = even.height };
    }

private:
    headless::EvenLetters m_even;
    double m_width; // even letters
};

// What others see of the game than who plays it usually.
class ToursOfOthers : public Tour {
protected:
    using Tour::Tour;

    void openEverySheet()
    {
        controller::Sheets& sheets = controller().sheets();
        const std::vector<std::function<void()>> all { [&] { sheets.openMap(); },
            [&] { sheets.openDaily(); }, [&] { sheets.openStatistics(); },
            [&] { sheets.openEditor(); }, [&] { sheets.openMine(); } };
        for (const auto& open : all) {
            open();
            wait(1.0);
            stop(sheets.name());
            sheets.close();
            wait(1.0);
            lookAway();
        }
    }
    // With everything on them that has words.
    void openFullSheets()
    {
        controller().shelf().add(play::codeOf("YR", "YRRG").value());
        controller().shelf().rename(
            controller().shelf().puzzles().all().front().code, "A name as long as names may be..");
        controller().book().replace(headless::resultsToShow(controller(), {}));
        openEverySheet();
        openWaysRound();
    }
};

class ToursInGerman : public ToursOfOthers {
protected:
    ToursInGerman()
        : ToursOfOthers(inGerman())
    {
    }

private:
    static Options inGerman()
    {
        Options options = ofAPlayer();
        options.preferences.records["Settings"] = { { "Language", "de" } };
        return options;
    }
};

class ToursInOtherLetters : public ToursOfOthers {
protected:
    explicit ToursInOtherLetters(const OtherLetters& letters)
        : ToursOfOthers(in(letters))
    {
    }

private:
    static Options in(const OtherLetters& letters)
    {
        Options options = ofAPlayer();
        options.textMetrics = &letters;
        return options;
    }
};

class ToursInWideLetters : public ToursInOtherLetters {
protected:
    ToursInWideLetters()
        : ToursInOtherLetters(kWide)
    {
    }

private:
    static inline const OtherLetters kWide { 2.0 };
};

class ToursInNarrowLetters : public ToursInOtherLetters {
protected:
    ToursInNarrowLetters()
        : ToursInOtherLetters(kNarrow)
    {
    }

private:
    static inline const OtherLetters kNarrow { 0.5 };
};

TEST_F(ToursInGerman, EveryPage)
{
    openEveryPage();
    compareWith("pages-in-german");
}

TEST_F(ToursInWideLetters, EverySheet)
{
    openFullSheets();
    compareWith("wide-letters");
}

TEST_F(ToursInNarrowLetters, EverySheet)
{
    openFullSheets();
    compareWith("narrow-letters");
}

} // namespace veyrand::test
