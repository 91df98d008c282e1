#include <gtest/gtest.h>

#include "tests/typesetter/recording_surface.h"
#include "typesetter/layout.h"

TEST(LayoutSmoke, EmptyText) {
    TypesetterState st;
    RecordingSurface s;
    st.ScreenSurface = &s;
    double size = 12;
    LayoutText(st, "", size, s);
    EXPECT_EQ(st.FlowResult, 0);
}
