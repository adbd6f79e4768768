#pragma once

#include <QString>
#include <QStringList>

// What the caption of an address-file column says about the column, read by
// its words so that the layouts of mail programs and web address books are
// understood ("Business Street", "Straße geschäftlich", "Address 1 - Street",
// "Dienstlich: Adresse", "Tel. dienstlich", "E-mail 1 - Value").
struct KalAddressCaption
{
    // Besides the KalCompanyRecord fields: a person's full name (split into
    // first and last name), a house number (joined to the street) and the
    // type column of a numbered entry ("Phone 1 - Type").
    enum Special { FullName = 100, HouseNumber = 101, TypeColumn = 102 };
    // Business values win over plain ones, plain over private ones, private
    // over "other" ones.
    enum Rank { Other = 0, Private = 1, Plain = 2, Business = 3 };

    int kind = -1; // a KalCompanyRecord field, a Special or -1 (not recognised)
    int rank = Plain;
    // A further line of the street ("Straße geschäftlich 2", "Extended Address").
    bool continuation = false;
    // Numbered entries ("Phone 1 - Value", "Phone 1 - Type") share a group.
    QString group;

    static KalAddressCaption analyse(const QString &caption);

    // A type value of a numbered entry ("Work", "* Home", "Mobile", "Work Fax",
    // "Arbeit", "Mobil") refines the field and rank a value column gave.
    // `field` becomes -1 for values that belong nowhere (a pager).
    static void applyType(const QString &typeValue, int *field, int *rank);

    // Lower-case words, umlauts folded, compound captions joined
    // ("E-Mail-Adresse" -> "email", "adresse"; "Postal Code" -> "postalcode").
    static QStringList words(const QString &text);
};
