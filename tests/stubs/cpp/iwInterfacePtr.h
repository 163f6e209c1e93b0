// What the C++ interface stands on: texts, pointers, arrays, and the hook by which a command is run.

#pragma once

#include <cstddef>

class iwString
{
public:
    iwString();
    iwString(const wchar_t* text);
};

class iwObject_c
{
};

template<class T>
class iwInterfacePtr
{
public:
    iwInterfacePtr(T* object = NULL);
    T* operator->() const;
    T** operator&();
    operator T*() const;
};

template<class T>
class iwArray
{
public:
    void add(T element);
    T operator[](int index) const;
};

typedef iwArray<double> iwDoubleArray;
typedef iwArray<long> iwLongArray;
typedef iwArray<iwString> iwStringArray;
typedef iwArray<iwObject_c*> iwObjectPtrArray;

class iwApplicationEvents_c
{
};

class iwCommandEvents_c
{
};

typedef bool (*iwExecuteNotify)(void* command);

template<class Command>
void iwHook(Command* command, void* owner, iwExecuteNotify notify);

#define DeclareCommandExecuteNotifyHook static bool ExecuteNotifyHook(void* command);
#define ImplementCommandExecuteNotifyHook(Class)                                                                       \
    bool Class::ExecuteNotifyHook(void* command)                                                                       \
    {                                                                                                                  \
        return static_cast<Class*>(command)->ExecuteNotify();                                                          \
    }
#define RegisterCommandExecuteNotifyHook(command) iwHook(command, this, &ExecuteNotifyHook)
#define UnRegisterCommandExecuteNotifyHook(command) iwHook(command, NULL, NULL)
