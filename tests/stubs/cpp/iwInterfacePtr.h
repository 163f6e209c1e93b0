// What the C++ interface stands on: texts, pointers, arrays, and the hook by which a command is run.

#pragma once

#include <cstddef>

class iwString
{
public:
    iwString();
    iwString(const wchar_t* text);
    bool operator==(const iwString& other) const;
};

class iwObject_c
{
};

typedef iwObject_c iwObject;

// Takes the address of any object's pointer: what is found decides what comes back.
class iwObjectOut
{
public:
    template<class T>
    iwObjectOut(T** object);
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

typedef iwInterfacePtr<iwObject_c> iwObject_ptr;

template<class T>
class iwArray
{
public:
    void add(T element);
    void clear();
    std::size_t length() const;
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
