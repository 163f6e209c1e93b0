#pragma once

namespace inkmacro {

/// The application's type library as an MSBuild project refers to it.
inline constexpr char comReference[] = R"(  <ItemGroup>
    <COMReference Include="Inkwright">
      <Guid>{92993D0B-2709-42F5-BA1B-9C224D757856}</Guid>
      <VersionMajor>1</VersionMajor>
      <VersionMinor>0</VersionMinor>
      <Lcid>0</Lcid>
      <WrapperTool>tlbimp</WrapperTool>
      <Isolated>False</Isolated>
    </COMReference>
  </ItemGroup>
)";

} // namespace inkmacro
