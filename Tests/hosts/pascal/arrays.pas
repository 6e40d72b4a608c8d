{ Calls the library with arrays as Free Pascal lays them out for variants: a third reader of the descriptor, written by
  neither the library nor the makers of OLE Automation. It prints what is wrong and counts it. }
program Arrays;

{$mode objfpc}{$H+}

uses
  SysUtils, Variants, VarUtils;

const
  Missing: Double = -1.79769313486231E+308;

type
  { One column of an array of columns: of its two arrays the one that the function reads. }
  TColumn = record
    Numbers, Strings: PVarArray;
  end;
  PPVarArray = ^PVarArray;

procedure VB_M_MinMaxSPV(a: PPVarArray; rows, cols: LongInt; min, max: PDouble; mask: PSmallInt; mode: SmallInt);
  cdecl; external 'VecMat';
procedure VB_M_TransposeSPV(a: PPVarArray; r, c: LongInt; target: PPVarArray); cdecl; external 'VecMat';
procedure VB_M_Transpose(a: PDouble; r, c: LongInt; target: PDouble); cdecl; external 'VecMat';
function VB_V_Mean2(x: PDouble; n: LongInt): Double; cdecl; external 'VecMat';
function ExtractBSTR(a: PPVarArray): Pointer; cdecl; external 'VecMat';

var
  Wrong: Integer = 0;
  Checked: Integer = 0;

procedure Expect(Holds: Boolean; const What: string);
begin
  Inc(Checked);
  if Holds then
    Exit;
  Inc(Wrong);
  WriteLn('WRONG: ', What);
end;

function ArrayOf(const Cells: array of Double; LowerBound: Integer): Variant;
var
  K: Integer;
begin
  Result := VarArrayCreate([LowerBound, LowerBound + High(Cells)], varDouble);
  for K := 0 to High(Cells) do
    Result[LowerBound + K] := Cells[K];
end;

function Descriptor(const Value: Variant): PVarArray;
begin
  Result := TVarData(Value).VArray;
end;

procedure CheckOneArray;
var
  V: Variant;
  Address: PVarArray;
begin
  V := ArrayOf([4, Missing, 5, 90], 1);
  Address := Descriptor(V);
  Expect(VB_V_Mean2(Address^.Data, 4) = 33, 'the mean of what is not missing');
  Expect(ExtractBSTR(@Address) = Address^.Data, 'the library finds the cells where the descriptor has them');
  Expect(PtrUInt(@Address^.Data) - PtrUInt(Address) = 16, 'the cells are told of at byte 16');
end;

{ Outside of Windows the last index of a variant array runs fastest, which is the other way round than OLE Automation has
  it: the columns of a table come first. }
procedure CheckTwoDimensions;
var
  Table, Turned: Variant;
  I, J: Integer;
begin
  Table := VarArrayCreate([1, 3, 1, 2], varDouble);
  Turned := VarArrayCreate([0, 1, 0, 2], varDouble);
  for I := 1 to 2 do
    for J := 1 to 3 do
      Table[J, I] := 10 * I + J;
  VB_M_Transpose(Descriptor(Table)^.Data, 2, 3, Descriptor(Turned)^.Data);
  for I := 1 to 2 do
    for J := 1 to 3 do
      Expect(Turned[I - 1, J - 1] = 10 * I + J, Format('cell %d, %d of the transposed table', [J, I]));
end;

procedure CheckColumns;
var
  First, Second, Third, A, B: Variant;
  Table: array[0..1] of TColumn;
  Target: array[0..2] of TColumn;
  Outer, OuterTarget: TVarArray;
  Address, TargetAddress: PVarArray;
  Min, Max: array[0..1] of Double;
  Mask: array[0..2] of SmallInt = (-1, 0, 0);
begin
  A := ArrayOf([0, 1, 2], 0);
  B := ArrayOf([10, 9, 8], 1);
  First := ArrayOf([7, 7], 0);
  Second := ArrayOf([7, 7], 1);
  Third := ArrayOf([7, 7], -5);
  FillChar(Table, SizeOf(Table), 0);
  FillChar(Target, SizeOf(Target), 0);
  FillChar(Outer, SizeOf(Outer), 0);
  FillChar(OuterTarget, SizeOf(OuterTarget), 0);
  Table[0].Numbers := Descriptor(A);
  Table[1].Numbers := Descriptor(B);
  Target[0].Numbers := Descriptor(First);
  Target[1].Numbers := Descriptor(Second);
  Target[2].Numbers := Descriptor(Third);
  Outer.Data := @Table;
  OuterTarget.Data := @Target;
  Address := @Outer;
  TargetAddress := @OuterTarget;
  VB_M_MinMaxSPV(@Address, 3, 2, @Min, @Max, @Mask, 0);
  Expect((Min[0] = 1) and (Max[0] = 2) and (Min[1] = 8) and (Max[1] = 9), 'the extremes of columns');
  VB_M_TransposeSPV(@Address, 3, 2, @TargetAddress);
  Expect((First[0] = 0) and (First[1] = 10) and (Second[1] = 1) and (Third[-4] = 8), 'columns are written in place');
end;

begin
  CheckOneArray;
  CheckTwoDimensions;
  CheckColumns;
  WriteLn(Checked, ' checked, ', Wrong, ' wrong');
  if Wrong > 0 then
    Halt(1);
end.
