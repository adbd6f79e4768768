#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// pellwick-cli run as a user's script would: a real process with the test's
// settings folder, as user `user` on computer "BAUBUERO".
struct KalCliResult
{
    int code = -1; // -2: crashed; -1: did not finish within a minute
    QString out;
    QString err;
};

KalCliResult kalRunCli(const QStringList &args, const QByteArray &user = "erika");
