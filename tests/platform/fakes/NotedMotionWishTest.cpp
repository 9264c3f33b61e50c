#include "platform/fakes/NotedMotionWish.h"

#include "platform/MotionWishContract.h"

namespace veyrand::platform {

namespace {

class NotedMotionWishHarness {
public:
    MotionWish& motionWish() { return m_wish; }
    void wish(bool less) { m_wish.wish(less); }

private:
    NotedMotionWish m_wish;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Noted, MotionWishContract, NotedMotionWishHarness);

} // namespace veyrand::platform
