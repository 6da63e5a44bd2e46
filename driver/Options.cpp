#include "driver/Options.h"

namespace quill::driver {

namespace {

// Each takes an option's value; false when it is not one.
bool TakeHome(const QString& value, Options& options) {
  options.Home = value;
  return !value.isEmpty();
}

bool TakeNow(const QString& value, Options& options) {
  options.Now = QDateTime::fromString(value, Qt::ISODate);
  return options.Now->isValid();
}

bool TakeScale(const QString& value, Options& options) {
  const std::optional<Scale> scale = ParseScale(value);
  options.Scale = scale.value_or(options.Scale);
  return scale.has_value();
}

bool TakeFault(const QString& value, Options& options) {
  const QString name = value.section(u':', 0, 0);
  NamedFault fault{name, {}};
  bool hasCode = true;
  if (value.contains(u':')) fault.What.Code = value.section(u':', 1).toInt(&hasCode);
  options.Faults.push_back(fault);
  return hasCode && FaultTable::IsKnown(name);
}

bool TakeInfrared(const QString& value, Options& options) {
  const bool isReal = value == u"obex";
  if (isReal) options.Infrared = InfraredChoice::Real;
  return isReal || value == u"script";
}

bool TakeOption(const QString& name, const QString& value, Options& options) {
  if (name == u"--home") return TakeHome(value, options);
  if (name == u"--now") return TakeNow(value, options);
  if (name == u"--scale") return TakeScale(value, options);
  if (name == u"--fault") return TakeFault(value, options);
  if (name == u"--infrared") return TakeInfrared(value, options);
  return false;
}

}  // namespace

ParsedOptions ParseOptions(const QStringList& arguments) {
  ParsedOptions parsed;
  for (qsizetype i = 0; i < arguments.size(); i += 2) {
    const QString value = arguments.value(i + 1);
    if (TakeOption(arguments[i], value, parsed.Options)) continue;
    parsed.Problem = arguments[i] + u' ' + value;
    break;
  }
  return parsed;
}

}  // namespace quill::driver
