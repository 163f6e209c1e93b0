#pragma once

#include "view/ClassNames.h"
#include "view/Columns.h"
#include "view/PageFile.h"
#include "view/Picture.h"

#include <QJsonObject>

namespace inkmacro::view {

/// Columns of one island and their layout, under the island's name in the index of a page.
void addColumns(const QByteArray& name, const Columns& columns, PageFile& page, QJsonObject& index);

/// Gives a page what it draws, and its index what that is called.
void addPicture(const Picture& picture, ClassNames& classes, PageFile& page, QJsonObject& index);

} // namespace inkmacro::view
