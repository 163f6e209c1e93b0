#include "view/pictureOf.h"

#include "view/Fold.h"
#include "view/references.h"

namespace inkmacro::view {

Picture pictureOf(OdDbDatabase& database, const CFxActionArray& actions, const PictureSource& source)
{
    Picture picture;
    Fold(picture, database, source).run(actions);
    cutReferences(picture);
    return picture;
}

} // namespace inkmacro::view
