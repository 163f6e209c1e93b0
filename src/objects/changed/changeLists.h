#pragma once

#include "objects/ChangeRows.h"

// The tags of each class whose changes are a list of tags with a statement each. Lengths are drawing units, angles
// radians, as recorded.

extern const ChangeGroups modifiedLine;
extern const ChangeGroups modifiedCircle;
extern const ChangeGroups modifiedPoint;
extern const ChangeGroups modifiedRay;
extern const ChangeGroups modifiedArc;
extern const ChangeGroups modifiedInfiniteLine;
extern const ChangeGroups modifiedEllipse;
extern const ChangeGroups modifiedPolyline3D;
extern const ChangeGroups modifiedPolyline;
extern const ChangeGroups modifiedSpline;
extern const ChangeGroups modifiedPolygonMesh;
extern const ChangeGroups modifiedPolyFaceMesh;
extern const ChangeGroups modifiedSolid;
extern const ChangeGroups modifiedTrace;
extern const ChangeGroups modifiedFace;
extern const ChangeGroups modifiedRichLine;
extern const ChangeGroups modifiedShape;
extern const ChangeGroups modifiedEmbeddedObject;
extern const ChangeGroups modifiedViewport;
extern const ChangeGroups modifiedLeader;
extern const ChangeGroups modifiedTolerance;
extern const ChangeGroups modifiedTextStyle;
extern const ChangeGroups modifiedAttributeDefinition;
extern const ChangeGroups modifiedSimpleNote;
extern const ChangeGroups modifiedNote;
extern const ChangeGroups modifiedCurvedText;
extern const ChangeGroups modifiedPicture;
extern const ChangeGroups modifiedTableStyle;
/// Of all dimension classes but two, which have tags of their own behind them.
extern const ChangeGroups modifiedDimension;
extern const ChangeGroups modifiedArcLengthDimension;
extern const ChangeGroups modifiedJoggedDimension;
extern const ChangeGroups modifiedDimensionStyle;
extern const ChangeGroups modifiedRichLineStyle;
extern const ChangeGroups modifiedGroup;
extern const ChangeGroups modifiedViewTile;

// Changes that are more than a list of tags: see ChangeHandler.
void ConvertModifiedLine(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text);
void ConvertModifiedBlockInstance(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                  Statement& text);
void ConvertModifiedTable(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text);
void ConvertModifiedLayer(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text);
void ConvertModifiedBlockDefinition(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                    Statement& text);
void ConvertModifiedSheet(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text);
void ConvertModifiedHatch(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text);
