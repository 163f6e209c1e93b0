// The prompt for a selection.

#include "targets/selectionPrompts.h"

#include "statements/arrays.h"
#include "statements/wording.h"

using namespace inkmacro;

/// C# and JavaScript list the elements where they declare the arrays.
static const Phrase listedElement{"EmitPromptSelection: listed element",
                                  {
                                      .csharp = "%1%3,%2",
                                      .javascript = "%1%3,%2",
                                  }};

/// C++ cannot look an object up within an expression: it does so in front of each line, into locals.
static const Phrase lookUp{"EmitPromptSelection: look-up",
                           {
                               .cpp = "%1iwDoc->GetObjectByHandle(L\"%3\", &type%4, &object%4);%2",
                           }};

static const Phrase findType{
    "EmitPromptSelection: looked-up word",
    {
        .cppCom = "pConnection->m_IwApp->GetObjectType(pConnection->m_IwApp->GetActiveDocument()->"
                  "GetObjectByHandle(L\"%1\", &type%2))",
        .csharp = "iwApp.GetObjectType(iwApp.GetActiveDocument().GetObjectByHandle(\"%1\", out type%2))",
        .javascript = "mApp.GetObjectType(mDoc.GetObjectByHandle(\"%1\").DispObj)",
        .vbNet = "iwApp.GetObjectType(iwApp.GetActiveDocument().GetObjectByHandle(\"%1\", type%2))",
        .vba = "iwApp.GetObjectType(iwApp.GetActiveDocument().GetObjectByHandle(\"%1\", type%2))",
    }};

static const Phrase findObject{
    "EmitPromptSelection: looked-up word",
    {
        .cppCom = "pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L\"%1\", &type%2)",
        .csharp = "iwApp.GetActiveDocument().GetObjectByHandle(\"%1\", out type%2)",
        .javascript = "mDoc.GetObjectByHandle(\"%1\").DispObj",
        .vbNet = "iwApp.GetActiveDocument().GetObjectByHandle(\"%1\", type%2)",
        .vba = "iwApp.GetActiveDocument().GetObjectByHandle(\"%1\", type%2)",
    }};

// The prompt of COM add-ins. POINTER is the type of the local that an object is held by on its way to the array.
#define INKMACRO_PROMPT_SELECTION_COM(POINTER)                                                                         \
    "%1iwObjectType_e type%3;%2%1VARIANT types%3;%2%1types%3.vt = ( VT_ARRAY | VT_I4  );%2"                            \
    "%1types%3.parray = SafeArrayCreateVector( VT_I4 , 0, %7 );%2%4%1VARIANT entities%3;%2"                            \
    "%1entities%3.vt = ( VT_ARRAY | VT_DISPATCH  );%2"                                                                 \
    "%1entities%3.parray = SafeArrayCreateVector( VT_DISPATCH , 0, %7 );%2%5"                                          \
    "%1pConnection->m_IwApp->GetCommandMessage()->PromptForSelection(false, L\"%6\", L\"\");%2%1{%2"                   \
    "%1    long count = pConnection->m_IwApp->GetActiveDocument()->GetSelectionManager()->"                            \
    "GetSelectedObjectCount(iwSelectionSetType_Previous);%2"                                                           \
    "%1    types%3.parray = SafeArrayCreateVector( VT_I4 , 0, count );%2"                                              \
    "%1    entities%3.parray = SafeArrayCreateVector( VT_DISPATCH , 0, count );%2"                                     \
    "%1    for (long i = 0; i < count; ++i)%2%1    {%2"                                                                \
    "%1        " POINTER " object = pConnection->m_IwApp->GetActiveDocument()->GetSelectionManager()->"                \
    "GetSelectedObject(iwSelectionSetType_Previous, i, &type%3);%2"                                                    \
    "%1        SafeArrayPutElement( types%3.parray, &i, (int*)&(type%3) );%2"                                          \
    "%1        SafeArrayPutElement( entities%3.parray, &i, (IDispatch*)(object) );%2%1    }%2%1}%2"

/// The JavaScript is not valid: it counts and makes its arrays as C# does, and passes an address.
static const Phrase promptSelection{
    "EmitPromptSelection",
    {
        .cpp =
            "%1iwObjectType_e type%3;%2%1iwObject_ptr object%3;%2%1iwLongArray types%3;%2%4"
            "%1iwObjectPtrArray entities%3;%2%5%1iwCommandMessage_c* cmdMesage%3;%2"
            "%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2"
            "%1cmdMesage%3->PromptForSelection(false, L\"%6\", L\"\");%2%1{%2"
            "%1    iwSelectionManager_ptr iwSelectionMgr%3;%2%1    iwDoc->GetSelectionManager( &iwSelectionMgr%3 );%2"
            "%1    long count = 0;%2"
            "%1    iwSelectionMgr%3->GetSelectedObjectCount(iwSelectionSetType_Previous, &count);%2"
            "%1    types%3.clear();%2%1    entities%3.clear();%2%1    for (long i = 0; i < count; ++i)%2%1    {%2"
            "%1        iwSelectionMgr%3->GetSelectedObject(iwSelectionSetType_Previous, i, &type%3, &object%3);%2"
            "%1        types%3.add(type%3);%2%1        entities%3.add(object%3);%2%1    }%2%1}%2",
        .cppCom = INKMACRO_PROMPT_SELECTION_COM("IDispatch*"),
        .csharp =
            "%1iwObjectType_e type%3;%2%1iwObjectType_e[] types%3 =%2%1{%2%4%1};%2%1object[] entities%3 =%2%1{%2%5%1};%2"
            "%1iwApp.GetCommandMessage().PromptForSelection(false, \"%6\", \"\");%2%1{%2"
            "%1   int count = iwApp.GetActiveDocument().GetSelectionManager()."
            "GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);%2"
            "%1    types%3 = new iwObjectType_e[count];%2%1    entities%3 = new object[count];%2"
            "%1    for (int i = 0; i < count; ++i)%2%1    {%2"
            "%1        entities%3[i] = iwApp.GetActiveDocument().GetSelectionManager()."
            "GetSelectedObject(iwSelectionSetType_e.iwSelectionSetType_Previous, i, out types%3[i]);%2%1    }%2%1}%2",
        .javascript = "%1var types%3 =%2%1[%2%4%1];%2%1var entities%3 =%2%1[%2%5%1];%2"
                      "%1mCmdMess.PromptForSelection(false, \"%6\", \"\");%2%1{%2"
                      "%1   int count = mApp.GetActiveDocument().GetSelectionManager()."
                      "GetSelectedObjectCount(iwSelectionSetType_Previous);%2"
                      "%1    types%3 = new Array[count];%2%1    entities%3 = new Array[count];%2"
                      "%1    for (int i = 0; i < count; ++i)%2%1    {%2"
                      "%1        entities%3[i] = mApp.GetActiveDocument().GetSelectionManager()."
                      "GetSelectedObject(iwSelectionSetType_Previous, i, &types%3[i]);%2%1    }%2%1}%2",
        .vbNet = "%1Dim type%3 As Inkwright.iwObjectType_e%2"
                 "%1Dim types%3 As Inkwright.iwObjectType_e() = New Inkwright.iwObjectType_e( %7 ) {}%2%4"
                 "%1Dim entities%3 As Object() = New Object( %7 ) {}%2%5"
                 "%1iwApp.GetCommandMessage().PromptForSelection(False, \"%6\", \"\")%2%1If 1 Then%2"
                 "%1   Dim count As Integer = iwApp.GetActiveDocument().GetSelectionManager()."
                 "GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)%2"
                 "%1    types%3 = New Inkwright.iwObjectType_e( count - 1 ) {}%2"
                 "%1    entities%3 = New Object( count - 1 ) {}%2%1    For i As Integer = 0 To count - 1%2"
                 "%1        entities%3( i ) = iwApp.GetActiveDocument().GetSelectionManager()."
                 "GetSelectedObject(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i, types%3( i ))%2"
                 "%1    Next%2%1End If%2",
        .vba = "%1Dim type%3 As Inkwright.iwObjectType_e%2%1Dim types%3() As Inkwright.iwObjectType_e%2"
               "%1ReDim types%3( %7 )%2%4%1Dim entities%3() As Object%2%1ReDim entities%3( %7 )%2%5"
               "%1iwApp.GetCommandMessage().PromptForSelection False, \"%6\", \"\"%2%1If 1 Then%2"
               "%1   Dim count%3 As Integer%2%1   count%3 = iwApp.GetActiveDocument().GetSelectionManager()."
               "GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)%2"
               "%1    ReDim types%3( count%3 - 1 )%2%1    ReDim entities%3( count%3 - 1 )%2%1    Dim i%3 As Integer%2"
               "%1    For i%3 = 0 To count%3 - 1%2"
               "%1        Set entities%3( i%3 ) = iwApp.GetActiveDocument().GetSelectionManager()."
               "GetSelectedObject(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i%3, types%3( i%3 ))%2"
               "%1    Next%2%1End If%2",
        .python = "%1message = drawing.app.GetCommandMessage()%2"
                  "%1message.PromptForSelection(False, %6, \"\")%2",
    }};
static const Mend keptSelection(promptSelection, Target::CppCom,
                                "a pointer is taken out of a temporary, which lets go of the object",
                                INKMACRO_PROMPT_SELECTION_COM("IDispatchPtr"));
static const Mend
    scriptSelection(promptSelection, Target::JavaScript, "declarations, arrays and an address as in a typed language",
                    "%1var types%3 =%2%1[%2%4%1];%2%1var entities%3 =%2%1[%2%5%1];%2"
                    "%1mCmdMess.PromptForSelection(false, \"%6\", \"\");%2%1{%2"
                    "%1    var selectionMgr%3 = mApp.GetActiveDocument().GetSelectionManager();%2"
                    "%1    var count%3 = selectionMgr%3.GetSelectedObjectCount(\"iwSelectionSetType_Previous\");%2"
                    "%1    types%3 = new Array(count%3);%2%1    entities%3 = new Array(count%3);%2"
                    "%1    for (var i = 0; i < count%3; ++i)%2%1    {%2"
                    "%1        var selected%3 = selectionMgr%3.GetSelectedObject(\"iwSelectionSetType_Previous\", i);%2"
                    "%1        entities%3[i] = selected%3[0];%2%1        types%3[i] = selected%3[1];%2%1    }%2%1}%2");

bool TakesWhatIsSelected(const Writer& writer)
{
    return writer.target == Target::Python;
}

EntityList SelectedEntities()
{
    return {{"*(entity for entity, _ in selected(drawing))", "*(kind for _, kind in selected(drawing))", {}}};
}

/// Python has no arrays of what was recorded: the call behind the prompt makes them of what is selected then.
Statement EmitPromptSelection(Writer& writer, const EntityList& entities)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const ArrayPlace typePlace(writer, "types" + QString::number(number), number);
    const ArrayPlace namePlace(writer, "entities" + QString::number(number), number);
    std::vector<QString> types;
    std::vector<QString> names;
    Statement typeLines;
    Statement nameLines;
    for (std::size_t i = 0; i < entities.size(); ++i) {
        const auto& [name, type, handle] = entities[i];
        const bool known = !name.isEmpty() && !type.isEmpty();
        const auto found = [&, &handle = handle](const Phrase& phrase, const char* local) {
            return phrase.has(writer.target) ? writer.fillPlain(phrase).text(handle).number(number).str().text()
                                             : local + QString::number(number);
        };
        types.push_back(known ? enumeratorText(writer.target, "iwObjectType_e", type) : found(findType, "type"));
        names.push_back(known ? name.toQString() : found(findObject, "object"));
        const Statement search = known ? Statement() : writer.fill(lookUp).text(handle).number(number).str();
        typeLines += search + bareObjectTypeLine(typePlace, i, types.back()) +
                     writer.fill(listedElement).word(types.back()).str();
        nameLines +=
            search + bareObjectLine(namePlace, i, names.back()) + writer.fill(listedElement).word(names.back()).str();
    }
    if (writer.target == Target::CppCom) {
        typeLines = inOwnGroup(typePlace, [&](const ArrayPlace& place) { return objectTypeLines(place, types); });
        nameLines = objectLines(namePlace, names);
    }
    // The prompt is always the same, whatever the recording said.
    return writer.fill(promptSelection)
        .number(number)
        .word(typeLines)
        .word(nameLines)
        .text(QLatin1String("Select Objects: "))
        .number(arrayBound(writer, entities.size()));
}
