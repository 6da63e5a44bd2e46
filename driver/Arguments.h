// The arguments of a request, strictly typed: nothing where one is missing or of another type.
#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QSize>
#include <QString>

#include <optional>

namespace quill::driver {

std::optional<int> WholeNumber(const QJsonValue& value);
std::optional<int> WholeNumber(const QJsonObject& arguments, QStringView name);
std::optional<double> Number(const QJsonObject& arguments, QStringView name);
std::optional<bool> Truth(const QJsonObject& arguments, QStringView name);
std::optional<QString> Text(const QJsonObject& arguments, QStringView name);
bool HasArgument(const QJsonObject& arguments, QStringView name);
// True only when the argument is there and true.
bool IsSet(const QJsonObject& arguments, QStringView name);

}  // namespace quill::driver
