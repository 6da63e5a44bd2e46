// infrared, infrared-offer.
#include <QJsonArray>

#include "driver/ContactJson.h"
#include "driver/Operations.h"
#include "driver/ScriptedInfrared.h"

namespace quill::driver {

namespace {

Answer TellInfrared(const QJsonObject&, OperationContext& context) {
  QJsonArray sends;
  for (const std::vector<Oid>& oids : context.Infrared.Sends()) {
    QJsonArray send;
    for (const Oid oid : oids) send.append(oid);
    sends.append(send);
  }
  return Result(u"infrared",
                QJsonObject{{QStringLiteral("sends"), sends},
                            {QStringLiteral("receives"), context.Infrared.Receives()}});
}

Answer Offer(const QJsonObject& arguments, OperationContext& context) {
  ContactItem contact;
  const QJsonValue fields = arguments.value(u"fields");
  if (!fields.isObject() || !PutFields(fields.toObject(), contact)) return Refusal(kMalformed);
  context.Infrared.Offer(std::move(contact));
  return Done();
}

}  // namespace

OperationTable InfraredOperations() {
  return {{u"infrared", TellInfrared}, {u"infrared-offer", Offer}};
}

}  // namespace quill::driver
