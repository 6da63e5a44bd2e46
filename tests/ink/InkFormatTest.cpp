#include "ink/InkFormat.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

// A note that another program wrote as well.
const QByteArray kSample = QByteArray::fromHex(
    "89494e4b580d0a1a2800000048454144010000002000000000"
    "1e0000000500000003000010010000640000000000000000000000010000009ef1e09f"
    "0800000050454e5301402010ff400019cca7040e"
    "13000000544558540180040080380248690102"
    "00c0030000 00ff00951c1d4f1b 0000005354524b00 010003d00f048005"
    "800a402020101f2f 00800800b7060a00 01021de746f00800 0000454e44460400 00001566bf12cb34 c152");

InkNote SampleNote() {
  InkNote note;
  note.Page = {.Width = 7680, .ContentHeight = 1280, .RulePitch = 768};
  note.Pens = {{.Color = 0xFF102040, .Diameter = 64, .MinimumWidth = 25}};
  note.Text = {.X = 256,
               .Y = 0,
               .WrapWidth = 7168,
               .Text = QStringLiteral("Hi"),
               .Runs = {{.Length = 2, .Size = 448, .Color = 0xFF000000}}};
  note.Strokes = {SealInkStroke({.Parts = kInkHasPressure | kInkHasTime,
                                 .Start = 1000,
                                 .Points = {{.X = 320, .Y = 640, .Pressure = 0, .Time = 0},
                                            {.X = 352, .Y = 648, .Pressure = 512, .Time = 5},
                                            {.X = 400, .Y = 640, .Pressure = 512, .Time = 10},
                                            {.X = 464, .Y = 608, .Pressure = 100, .Time = 16}}})};
  return note;
}

TEST(InkFormat, TheSampleIsWrittenByteByByte) {
  ASSERT_EQ(kSample.size(), 170);
  EXPECT_EQ(WriteInk(SampleNote(), InkCodec::Raw).toHex(), kSample.toHex());
}

TEST(InkFormat, TheSampleIsRead) {
  const InkContent content = ReadInk(kSample);
  EXPECT_EQ(content.Reading, InkReading::Whole);
  EXPECT_EQ(content.SkippedChunks, 0);
  EXPECT_EQ(content.Note.Page, SampleNote().Page);
  EXPECT_EQ(content.Note.Pens, SampleNote().Pens);
  EXPECT_EQ(content.Note.Text, SampleNote().Text);
  ASSERT_EQ(content.Note.Strokes.size(), 1U);
  EXPECT_EQ(*content.Note.Strokes[0], *SampleNote().Strokes[0]);
}

}  // namespace
}  // namespace quill
