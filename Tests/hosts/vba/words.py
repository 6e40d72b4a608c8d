"""The words of VBA, and what its library offers in every host."""

RESERVED = set("""
    call case close const declare defbool defbyte defcur defdate defdbl defint deflng deflnglng deflngptr defobj defsng
    defstr defvar dim do else elseif end endif enum erase event exit for friend function get global gosub goto if
    implements input let lock loop lset next on open option print private public put raiseevent redim resume return rset
    seek select set static stop sub type unlock wend while with write any as byref byval each in new shared until
    withevents optional paramarray preserve spc tab then to addressof and eqv imp is like mod not or typeof xor abs cbool
    cbyte ccur cdate cdbl cdec cint clng clnglng clngptr csng cstr cvar cverr date debug doevents fix int len lenb me
    pset scale sgn string array circle inputb lbound ubound boolean byte currency double integer long longlong longptr
    single variant true false nothing empty null rem attribute lineinput cdecl decimal defdec""".split())

# Functions with their least and largest counts of arguments.
FUNCTIONS = {name: (least, most) for least, most, names in (
    (0, 0, "date doevents now timer time"),
    (0, 1, "rnd error"),
    (0, 60, "array"),
    (1, 1, """abs asc ascb ascw atn cbool cbyte ccur cdate cdbl cdec chr chrw cint clng clnglng clngptr cos csng cstr cvar
        cverr day exp fix hex hour int isarray isdate isempty iserror ismissing isnull isnumeric isobject lcase len lenb
        log ltrim minute month objptr oct qbcolor rtrim second sgn sin space sqr str strptr strreverse tan trim typename
        ucase val varptr vartype year"""),
    (1, 2, "lbound ubound round join environ weekday"),
    (1, 3, "filter"), (1, 4, "split format"), (1, 5, "msgbox"),
    (2, 2, "left right leftb rightb string"), (2, 3, "mid midb strcomp strconv"), (2, 4, "instr instrrev"),
    (2, 60, "choose switch"), (3, 3, "iif rgb dateadd dateserial timeserial"), (3, 6, "replace"),
) for name in names.split()}
TEXT_FUNCTIONS = set("""chr chrw error format hex join lcase left ltrim mid midb oct replace right rtrim space str string
    trim ucase environ""".split())  # which may end with $
CALLABLE_WORDS = RESERVED & (set(FUNCTIONS) | {"debug", "me"})
ONLY_64_BIT = {"clnglng", "vblonglong", "longlong"}
ONLY_VBA7 = {"clngptr", "longptr"}

TYPES = set("""boolean byte currency date double integer long longlong longptr object single string variant
    collection errobject""".split())
CONSTANTS = set("""vbempty vbnull vbinteger vblong vbsingle vbdouble vbcurrency vbdate vbstring vbobject vberror vbboolean
    vbvariant vbdataobject vbdecimal vbbyte vbuserdefinedtype vbarray vblonglong vbnullstring vbnullchar vbcr vblf vbcrlf
    vbtab vbnewline vbtextcompare vbbinarycompare vbobjecterror vbtrue vbfalse""".split())
OBJECTS = {
    "err": set("number description source raise clear helpfile helpcontext lastdllerror".split()),
    "debug": {"print", "assert"},
    "collection": {"add", "item", "remove", "count"},
}
PROCEDURES = {"randomize": (0, 1), "appactivate": (1, 2), "beep": (0, 0)}
