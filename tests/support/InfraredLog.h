// An infrared folder that carries nothing and keeps what it was asked for: "open", "add OID",
// "send" and "receive".
#pragma once

#include <QList>
#include <QStringList>

#include "platform/Infrared.h"

namespace quill::test {

class InfraredLog : public InfraredFolder {
 public:
  bool Open() override {
    Asked.append(QStringLiteral("open"));
    return Opens;
  }
  bool AddItem(qint32 oid) override {
    Asked.append(QStringLiteral("add %1").arg(oid));
    return !Refused.contains(oid);
  }
  bool Send() override {
    Asked.append(QStringLiteral("send"));
    return Sends;
  }
  bool Receive() override {
    Asked.append(QStringLiteral("receive"));
    return Receives;
  }

  QStringList Asked;
  QList<qint32> Refused;
  bool Opens = true;
  bool Sends = true;
  bool Receives = true;
};

}  // namespace quill::test
