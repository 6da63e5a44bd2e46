// tap, doubletap, press, move, release, hold, stroke, wait.
#include <QJsonArray>

#include "driver/Arguments.h"
#include "driver/Operations.h"
#include "driver/Pen.h"
#include "driver/Steps.h"
#include "driver/Targets.h"

namespace quill::driver {

namespace {

constexpr int kHoldMilliseconds = 600;

// Adds steps for a pen at a point of the screen.
using PenGesture = void (*)(OperationContext& context, QPointF at);

void Press(OperationContext& context, QPointF at) {
  context.Steps.Add([&pen = context.Pen, at] { pen.Press(at); });
}

void Release(OperationContext& context, QPointF at) {
  context.Steps.Add([&pen = context.Pen, at] { pen.Release(at); });
}

void Move(OperationContext& context, QPointF at) {
  context.Steps.Add([&pen = context.Pen, at] { pen.Move(at); });
}

void Tap(OperationContext& context, QPointF at) {
  Press(context, at);
  Release(context, at);
}

void DoubleTap(OperationContext& context, QPointF at) {
  Tap(context, at);
  context.Steps.Add([&pen = context.Pen, at] { pen.PressAgain(at); });
  Release(context, at);
}

void Hold(OperationContext& context, QPointF at) {
  Press(context, at);
  context.Steps.Add([] {}, kHoldMilliseconds);
}

Handler AtPoint(PenGesture gesture) {
  return [gesture](const QJsonObject& arguments, OperationContext& context) {
    const std::optional<double> x = Number(arguments, u"x");
    const std::optional<double> y = Number(arguments, u"y");
    if (!x || !y) return Refusal(kMalformed);
    const std::optional<Target> target = FindTarget(arguments.value(u"on"));
    if (!target) return RefuseTarget(arguments.value(u"on"));
    gesture(context, OnScreen(*target, QPoint(0, 0)) + QPointF(*x, *y));
    return Done();
  };
}

// [x, y] or [x, y, pressure] relative to the origin; without a pressure it is a full one.
std::optional<StrokePoint> ReadPoint(const QJsonArray& numbers, QPointF origin) {
  if (numbers.size() < 2 || numbers.size() > 3) return std::nullopt;
  for (const auto& number : numbers)
    if (!number.isDouble()) return std::nullopt;
  const QPointF at(numbers[0].toDouble(), numbers[1].toDouble());
  return StrokePoint{origin + at, numbers.size() == 3 ? numbers[2].toDouble() : 1.0};
}

std::optional<std::vector<StrokePoint>> ReadPoints(const QJsonValue& value, QPointF origin) {
  std::vector<StrokePoint> points;
  const QJsonArray list = value.toArray();
  for (const auto& numbers : list) {
    const std::optional<StrokePoint> point = ReadPoint(numbers.toArray(), origin);
    if (!point) return std::nullopt;
    points.push_back(*point);
  }
  return points.empty() ? std::nullopt : std::optional(points);
}

Answer Stroke(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<Target> target = FindTarget(arguments.value(u"on"));
  if (!target) return RefuseTarget(arguments.value(u"on"));
  const auto points = ReadPoints(arguments.value(u"points"), OnScreen(*target, QPoint(0, 0)));
  if (!points) return Refusal(kMalformed);
  Pen& pen = context.Pen;
  context.Steps.Add([&pen, first = points->front()] { pen.StrokePress(first); });
  for (auto point = points->begin() + 1; point != points->end(); ++point)
    context.Steps.Add([&pen, next = *point] { pen.StrokeMove(next); });
  context.Steps.Add([&pen, last = points->back()] { pen.StrokeRelease(last); });
  return Done();
}

Answer Wait(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> milliseconds = WholeNumber(arguments, u"ms");
  if (!milliseconds || *milliseconds < 0) return Refusal(kMalformed);
  context.Steps.Add([] {}, *milliseconds);
  return Done();
}

}  // namespace

OperationTable PenOperations() {
  return {
      {u"tap", AtPoint(Tap)},
      {u"doubletap", AtPoint(DoubleTap)},
      {u"press", AtPoint(Press)},
      {u"move", AtPoint(Move)},
      {u"release", AtPoint(Release)},
      {u"hold", AtPoint(Hold)},
      {u"stroke", Stroke},
      {u"wait", Wait},
  };
}

}  // namespace quill::driver
