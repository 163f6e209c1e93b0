// Attributes of block references.

#include "objects/targets/blockAttributes.h"

#include "statements/bstrTexts.h"

using namespace inkmacro;

static const Phrase blockAttributeValue{
    "EmitBlockAttributeValue",
    {
        .cpp = "%1iwObjectPtrArray iwAttributes%3;%2%1%4->GetAttributeInstances( &iwAttributes%3 );%2"
               "%1for (int i = 0; i < (int)iwAttributes%3.length(); ++i)%2%1{%2"
               "%1    iwAttributeInstance_c* iwAttribute%3 = (iwAttributeInstance_c*)iwAttributes%3[i];%2"
               "%1    iwString name%3;%2%1    iwAttribute%3->get_Name( &name%3 );%2%1    if (name%3 == L\"%5\")%2"
               "%1        iwAttribute%3->put_%6( L\"%7\" );%2%1}%2",
        .cppCom = "%1IAttributeInstancePtr *iwAttributes%3 = NULL;%2%1int count%3 = 0;%2"
                  "%1TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( "
                  "%4->GetAttributeInstances(), iwAttributes%3, count%3 );%2"
                  "%1for (int i = 0; i < count%3; ++i)%2%1{%2"
                  "%1    if (iwAttributes%3[i]->GetName() == _bstr_t(L\"%5\"))%2"
                  "%1        iwAttributes%3[i]->put_%6( L\"%7\" );%2%1}%2",
        .csharp = "%1object[] iwAttributes%3 = (object[])%4.GetAttributeInstances();%2"
                  "%1foreach (object attribute%3 in iwAttributes%3)%2%1{%2"
                  "%1    AttributeInstance iwAttribute%3 = attribute%3 as AttributeInstance;%2"
                  "%1    if (iwAttribute%3.Name == \"%5\")%2%1        iwAttribute%3.%6 = \"%7\";%2%1}%2",
        .javascript = "%1var iwAttributes%3 = %4.GetAttributeInstances();%2"
                      "%1for (var i = 0; i < iwAttributes%3.length; ++i)%2%1{%2"
                      "%1    if (iwAttributes%3[i].get_Name() == \"%5\")%2"
                      "%1        iwAttributes%3[i].put_%6(\"%7\");%2%1}%2",
        .vbNet = "%1Dim iwAttributes%3 As Object() = %4.GetAttributeInstances()%2"
                 "%1For Each iwAttribute%3 As Inkwright.AttributeInstance In iwAttributes%3%2"
                 "%1    If iwAttribute%3.Name = \"%5\" Then%2%1        iwAttribute%3.%6 = \"%7\"%2%1    End If%2"
                 "%1Next%2",
        .vba = "%1Dim iwAttributes%3 As Variant%2%1iwAttributes%3 = %4.GetAttributeInstances()%2"
               "%1Dim iwAttribute%3 As Variant%2%1For Each iwAttribute%3 In iwAttributes%3%2"
               "%1    If iwAttribute%3.Name = \"%5\" Then%2%1        iwAttribute%3.%6 = \"%7\"%2%1    End If%2"
               "%1Next%2",
    }};
static const Mend bstrAttributeValue(blockAttributeValue, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitBlockAttributeValue(Writer& writer, const CFxString& variable, const CFxString& property,
                                const CFxString& tag, const CFxString& value)
{
    return writer.fill(blockAttributeValue)
        .number(++writer.UniqueCounter)
        .text(variable)
        .text(tag)
        .text(property)
        .text(value);
}
