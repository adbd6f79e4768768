#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// One run of pellwick-cli as a script would start it, as user `user` on
// computer "BAUBUERO".
struct KalCliRun
{
    int code = -1; // -2: crashed, -1: did not finish
    QByteArray out;
    QString err;

    QString text() const { return QString::fromUtf8(out); }
};

KalCliRun kalCli(const QStringList &args, const QByteArray &user = "erika");
