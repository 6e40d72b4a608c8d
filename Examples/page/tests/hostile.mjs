// Files as nobody should make them: [what is odd, the content, a name where it matters].
const bytes = (...parts) => Buffer.concat(parts.map((part) => (typeof part === "string" ? Buffer.from(part, "utf8") : Buffer.from(part))));
const utf16 = (text, swapped = false) => {
  const content = Buffer.from(`\ufeff${text}`, "utf16le");
  return swapped ? content.swap16() : content;
};
const rows = (count, row) => Array.from({ length: count }, (_, i) => row(i)).join("\n");
const birds = "species,mass,wing\nowl,1.5,30\nowl,2.5,31\ncrow,0.5,22\ncrow,0.4,\nowl,2.25,33\ncrow,0.6,24\n";
const markup = '<img src=x onerror=alert(1)>';

export const hostile = [
  ["empty", ""],
  ["line breaks alone", "\n\n\n"],
  ["a heading alone", "a,b,c\n"],
  ["a row that is too short", "a,b,c\n1,2,3\n4,5\n"],
  ["a row that is too long", "a,b\n1,2\n3,4,5\n"],
  ["an empty line between rows", "a,b\n1,2\n\n3,4\n"],
  ["a quote that isn't closed", 'a,b\n1,"2\n3,4\n5,6\n'],
  ["text behind a quote", 'a,b\n1,"2" x\n'],
  ["line breaks and quotes in quotes", 'a,b\n1,"x ""y""\nz"\n2,"x ""y""\nz"\n3,w\n'],
  ["a text in a column of numbers", "a,b\n1,2\n2,x\n3,4\n4,5\n"],
  ["a number beyond the range", "a,b\n1,2\n1e999,3\n"],
  ["a number too small for the range", "a,b\n1,2\n1e-999,3\n"],
  ["an infinite number", "a,b\n1,2\ninf,3\n4,5\n"],
  ["not a number", "a,b\n1,2\nnan,3\n4,5\n"],
  ["the number that stands for a missing cell", "a,b\n1,2\n-1.79769313486231e308,3\n4,5\n"],
  ["huge numbers", "a,b\n1e308,1\n-1.5e308,2\n9e307,4\n1.1e308,3\n"],
  ["tiny numbers", "a,b\n5e-324,1\n2e-310,2\n-1e-320,4\n0,3\n"],
  ["numbers with many digits", rows(30, (i) => (i === 0 ? "a,b" : `${i}.12345678901234567890123,${(i * 7919) % 31}e-3`))],
  ["zero bytes", bytes("a,b\n1,", [0], "2\n")],
  ["zero bytes all over", Buffer.alloc(1000)],
  ["UTF-16, little end first", utf16("größe,b\n1,2\n3,5\n2,4\n")],
  ["UTF-16, big end first", utf16("größe,b\n1,2\n3,5\n2,4\n", true)],
  ["UTF-16 that ends within a character", utf16("a,b\n1,2\n").subarray(0, 15)],
  ["a byte order mark", `\ufeff${birds}`],
  ["Windows-1252", Buffer.from("größe,b\n1,2\n3,5\n2,4\n", "latin1")],
  ["bytes that are no text", Buffer.from(Array.from({ length: 2000 }, (_, i) => (i * i * 31 + i * 7) % 251))],
  ["an archive", bytes("PK\x03\x04", Buffer.alloc(100))],
  ["a compressed file", bytes([0x1f, 0x8b, 8, 0, 0, 0, 0, 0])],
  ["no numeric column", "a,b\nx,y\nz,w\n"],
  ["a name twice", "a,b,a\n1,2,3\n"],
  ["columns without names", ",,\n1,2,3\n4,5,6\n2,2,9\n"],
  ["a grouping column with one value", rows(9, (i) => (i === 0 ? "g,x,y" : `all of them,${i * i},${(i * 5) % 7}`))],
  ["one row", "g,x,y\na,1,2\n"],
  ["one column", "x\n1\n5\n2\n"],
  ["a column without cells", "x,y,z\n1,,2\n3,,5\n4,,4\n"],
  ["all cells equal", rows(20, (i) => (i === 0 ? "g,x,y" : `${"ab"[i % 2]},1,2`))],
  ["semicolons and decimal commas", "g;x;y\na;1,5;2\nb;2,25;3\na;0,5;7\nb;3,75;1\n"],
  ["tabs, and lines that end with CR", "g\tx\ty\ra\t1\t2\rb\t3\t4\ra\t2\t7\r"],
  ["markup in names and cells", `${markup},x,<b>y</b>\n${markup},1,2\n<script>alert(2)</script>,3,5\n${markup},4,1\n<script>alert(2)</script>,6,3\n${markup},2,2\n<script>alert(2)</script>,5,8\n`],
  ["markup in the name of the file", birds, `${markup.replaceAll("/", "")}.csv`],
  ["markup in a mistake", `a,b\n1,2\n${markup},3\n4,5\n`],
  ["a file named as the standard input", birds, "-"],
  ["a file named as an option", birds, "--help"],
  ["a name in another script", birds, "鳥 ١٢٣ \u202egpj.csv"],
  ["words of another direction", "قسم,x\nأول,1\nثان,2\nأول,4\nثان,3\nأول,5\nثان,9\n"],
  ["characters that control", "g,x\na\x07b\x1b[31m,1\na\x07b\x1b[31m,2\nc\x7f,4\nc\x7f,3\na\x07b\x1b[31m,5\nc\x7f,1\n"],
  ["formulas", "=1+1,x\n=cmd|' /C calc'!A0,1\n@sum(1),4\n=cmd|' /C calc'!A0,2\n@sum(1),3\n-x,5\n-x,7\n"],
  ["a cell of a million characters", `g,x\n${"a".repeat(1e6)},1\nb,2\nb,4\n`],
  ["sixty columns", rows(40, (i) => Array.from({ length: 60 }, (_, j) => (i === 0 ? `c${j}` : String((i * i * (j + 3) + 17 * i) % 101))).join(","))],
  ["many groups", rows(4001, (i) => (i === 0 ? "g,x,y" : `group ${(i * 7) % 2000},${(i * 31) % 97},${(i * i) % 89}`))],
  ["missing cells everywhere", rows(60, (i) => (i === 0 ? "g,x,y,z" : `${["a", "b", ""][i % 3]},${i % 2 ? i : ""},${i % 5 ? (i * i) % 23 : "NA"},${i % 7 ? i % 11 : ""}`))],
];

export { birds };
