// Names in markup.
#include "tools/kestrel/Markup.h"

#include <gtest/gtest.h>

namespace kestrel {

namespace {

TEST(MarkupTest, TextStaysText) {
  EXPECT_EQ(escaped("a<b>&\"c'"), "a&lt;b&gt;&amp;&quot;c&#39;");
  EXPECT_EQ(escaped("&amp;"), "&amp;amp;");
  EXPECT_EQ(escaped(""), "");
}

TEST(MarkupTest, BytesThatNoDocumentMayHoldAreShown) {
  EXPECT_EQ(escaped(std::string_view("a\0\x1b\n\xc3", 5)), "a\\x00\\x1B\\x0A\\xC3");
}

TEST(MarkupTest, AttributesAreEscapedAndContentIsNot) {
  EXPECT_EQ(element("rect", {{"x", 4u}, {"class", "a\"b"}}),
            "<rect x=\"4\" class=\"a&quot;b\"></rect>");
  EXPECT_EQ(element("g", {}, element("title", {}, escaped("<"))), "<g><title>&lt;</title></g>");
}

}  // namespace

}  // namespace kestrel
