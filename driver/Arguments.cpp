#include "driver/Arguments.h"

#include <cmath>
#include <limits>

namespace quill::driver {

std::optional<int> WholeNumber(const QJsonValue& value) {
  if (!value.isDouble()) return std::nullopt;
  const double number = value.toDouble();
  const bool fits = number >= std::numeric_limits<int>::min() &&
                    number <= std::numeric_limits<int>::max() && std::floor(number) == number;
  return fits ? std::optional(static_cast<int>(number)) : std::nullopt;
}

std::optional<int> WholeNumber(const QJsonObject& arguments, QStringView name) {
  return WholeNumber(arguments.value(name));
}

std::optional<double> Number(const QJsonObject& arguments, QStringView name) {
  const QJsonValue value = arguments.value(name);
  return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

std::optional<bool> Truth(const QJsonObject& arguments, QStringView name) {
  const QJsonValue value = arguments.value(name);
  return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<QString> Text(const QJsonObject& arguments, QStringView name) {
  const QJsonValue value = arguments.value(name);
  return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

bool HasArgument(const QJsonObject& arguments, QStringView name) {
  return arguments.contains(name);
}

bool IsSet(const QJsonObject& arguments, QStringView name) {
  return arguments.value(name).toBool(false);
}

}  // namespace quill::driver
