#include "app/SampleMemos.h"

#include <algorithm>
#include <array>

#include "memo/MemoFolder.h"

namespace quill {
namespace {

struct SampleMemo {
  QStringView Name;
  const char* Text;
};
constexpr auto kMemos = std::to_array<SampleMemo>({
    {u"Ahlberg, Ingrid_20240311_101500.pwi", "Bring back the blue casserole"},
    {u"Ahlberg, Ingrid_20240402_184210.pwi", "Elias: new school from August, bus 14"},
    {u"Underhill, Una_20240521_090730.pwi", "Gate code changed, ring at the side door"},
    {u"Varma, Raj_20240605_143305.pwi", "Loom drawings: second sheet, seam allowance"},
    {u"Zander, Milo_20240618_201500.pwi", "Court 3, Thursday at 8, own balls"},
    {u"김서연_20240409_112040.pwi", "느티나무길 12, 2층"},
    {u"이준호_20240530_160012.pwi", "등산 일정 다시 확인"},
    {u"Memo_20240701_075500.pwi", "Ask about the key to the allotment"},
});

bool PutMemo(DeviceFiles& files, const SampleMemo& memo) {
  const QString path = MemoPath(MemoState(), memo.Name.toString());
  return files.Exists(path) || files.WriteWhole(path, memo.Text);
}

}  // namespace

bool PutSampleMemos(DeviceFiles& files) {
  files.CreateFolder(MemoState().Folder);  // a failure shows when the first one is written
  return std::all_of(kMemos.begin(), kMemos.end(),
                     [&](const SampleMemo& each) { return PutMemo(files, each); });
}

}  // namespace quill
