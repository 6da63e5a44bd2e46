#include "app/SampleMemos.h"

#include <algorithm>
#include <array>

#include "app/SampleInk.h"
#include "ink/InkFormat.h"
#include "memo/MemoFolder.h"

namespace quill {
namespace {

struct SampleMemo {
  QStringView Name;
  QStringView Text;
  SampleSketch Sketch;
};
constexpr auto kMemos = std::to_array<SampleMemo>({
    {u"Ahlberg, Ingrid_20240311_101500.pwi", u"Bring back the blue casserole",
     SampleSketch::Underline},
    {u"Ahlberg, Ingrid_20240402_184210.pwi", u"Elias: new school from August,\nbus 14",
     SampleSketch::Circle},
    {u"Underhill, Una_20240521_090730.pwi", u"Gate code changed,\nring at the side door",
     SampleSketch::Arrow},
    {u"Varma, Raj_20240605_143305.pwi", u"Loom drawings: second sheet,\nseam allowance",
     SampleSketch::Underline},
    {u"Zander, Milo_20240618_201500.pwi", u"Court 3, Thursday at 8,\nown balls",
     SampleSketch::Circle},
    {u"김서연_20240409_112040.pwi", u"느티나무길 12, 2층", SampleSketch::Arrow},
    {u"이준호_20240530_160012.pwi", u"등산 일정 다시 확인", SampleSketch::Underline},
    {u"Memo_20240701_075500.pwi", u"Ask about the key\nto the allotment", SampleSketch::Circle},
});

bool PutMemo(DeviceFiles& files, const SampleMemo& memo) {
  const QString path = MemoPath(MemoState(), memo.Name.toString());
  return files.Exists(path) ||
         files.WriteWhole(path, WriteInk(MakeSampleNote(memo.Text.toString(), memo.Sketch)));
}

}  // namespace

bool PutSampleMemos(DeviceFiles& files) {
  files.CreateFolder(MemoState().Folder);  // a failure shows when the first one is written
  return std::all_of(kMemos.begin(), kMemos.end(),
                     [&](const SampleMemo& each) { return PutMemo(files, each); });
}

}  // namespace quill
