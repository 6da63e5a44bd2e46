#include "exchange/CardMedia.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

struct MediaCase {
  const char* Line;
  const char* MediaType;
};

class CardMediaTest : public testing::TestWithParam<MediaCase> {};

TEST_P(CardMediaTest, SaysWhatTheBytesAre) {
  const auto media = MediaIn(PropertyOf(GetParam().Line));
  ASSERT_TRUE(media);
  EXPECT_EQ(media->MediaType.toStdString(), GetParam().MediaType);
  EXPECT_EQ(media->Base64, "aW5r");
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CardMediaTest,
    testing::Values(MediaCase{"PHOTO;ENCODING=b;TYPE=JPEG:aW 5r", "image/jpeg"},
                    MediaCase{"LOGO;BASE64;PREF;GIF:aW5r", "image/gif"},
                    MediaCase{"SOUND;ENCODING=b;TYPE=WAVE:aW5r", "audio/wave"},
                    MediaCase{"KEY;ENCODING=b;TYPE=PGP:aW5r", "application/pgp"},
                    MediaCase{"PHOTO;ENCODING=b:aW5r", "application/octet-stream"},
                    MediaCase{"X-A;ENCODING=b;TYPE=JPEG:aW5r", "application/octet-stream"},
                    MediaCase{"X-A:data:image/png;base64,aW5r", "image/png"}));

TEST(CardMedia, AnAddressOfBytesOrATextHoldsNone) {
  EXPECT_FALSE(MediaIn(PropertyOf("PHOTO;VALUE=uri:http://example.com/a,b")));
  EXPECT_FALSE(MediaIn(PropertyOf("PHOTO:data:image/png,plain")));
  EXPECT_FALSE(MediaIn(PropertyOf("NOTE:a note")));
}

TEST(CardMedia, APropertyNamesItsFamily) {
  EXPECT_EQ(MediaOf(PropertyOf("PHOTO:x")), QStringView(u"image/"));
  EXPECT_TRUE(MediaOf(PropertyOf("NOTE:x")).isEmpty());
}

}  // namespace
}  // namespace quill::test
