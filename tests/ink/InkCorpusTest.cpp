// Files that another writer made, one for each kind of content and damage.
#include <QFile>

#include <gtest/gtest.h>

#include "ink/InkFormat.h"
#include "ink/InkSamples.h"

namespace quill::test {
namespace {

struct FileRow {
  const char* Name;
  InkReading Reading;
  std::size_t Strokes;
  const char* Text = "";
};

QByteArray BytesOf(const char* name) {
  QFile file(QStringLiteral(INK_SAMPLES "/%1.pwi").arg(QLatin1String(name)));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll();
}

class InkFiles : public testing::TestWithParam<FileRow> {};

TEST_P(InkFiles, AreReadAsWhatTheyAre) {
  const FileRow& row = GetParam();
  const InkContent content = ReadInk(BytesOf(row.Name));
  EXPECT_EQ(content.Reading, row.Reading);
  EXPECT_EQ(content.Note.Strokes.size(), row.Strokes);
  EXPECT_EQ(content.Note.Text.Text.toStdString(), row.Text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InkFiles,
    testing::Values(
        FileRow{"nothing", InkReading::Empty, 0}, FileRow{"sample", InkReading::Whole, 1, "Hi"},
        FileRow{"text-only", InkReading::Whole, 0, "One line\nand 서울 😀\n"},
        FileRow{"two-strokes", InkReading::Whole, 2},
        FileRow{"all-parts", InkReading::Whole, 3, "Hi"}, FileRow{"packed", InkReading::Whole, 64},
        FileRow{"two-chunks", InkReading::Whole, 2}, FileRow{"cut", InkReading::Damaged, 1},
        FileRow{"flipped", InkReading::Damaged, 1}, FileRow{"open", InkReading::Damaged, 2},
        FileRow{"newer-chunk", InkReading::Newer, 2},
        FileRow{"newer-text", InkReading::Newer, 0, "Hi"},
        FileRow{"foreign", InkReading::Foreign, 0}, FileRow{"other-major", InkReading::Foreign, 0}),
    [](const auto& row) { return QString::fromLatin1(row.param.Name).remove(u'-').toStdString(); });

TEST(InkCorpus, TwoWritersWriteTheSame) {
  for (const char* name : {"sample", "two-strokes"}) {
    EXPECT_EQ(WriteInk(ReadInk(BytesOf(name)).Note, InkCodec::Raw), BytesOf(name)) << name;
  }
  EXPECT_EQ(WriteInk(ReadInk(BytesOf("packed")).Note), BytesOf("packed"));
}

TEST(InkCorpus, EveryPartOfAPointIsRead) {
  const InkNote note = ReadInk(BytesOf("all-parts")).Note;
  EXPECT_EQ(note.Pens[0].Tip, InkTip::Highlighter);
  EXPECT_EQ(note.Strokes[0]->Start, 1'700'000'000'005);
  EXPECT_EQ(note.Strokes[0]->Points[11].Pressure, 540);
  EXPECT_EQ(note.Strokes[0]->Points[11].Time, 56U);
  EXPECT_EQ(note.Strokes[1]->Points[4].TiltX, -26);
  EXPECT_EQ(note.Strokes[1]->Points[4].TiltY, 16);
  EXPECT_EQ(note.Strokes[2]->Start, 1'700'000'000'000 - 70);
  EXPECT_EQ(note.Extras, (std::vector<InkExtra>{{"wiND", "kept"}}));
}

}  // namespace
}  // namespace quill::test
