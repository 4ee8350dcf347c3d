// Makes the picture libraries beside the program from their drawings: npm i @resvg/resvg-js sharp, then
// node data/art/maak.mjs [folder] [number or name]
//
// "node data/art/maak.mjs Frames 4" makes Frame-004.jpg only, "... Stickers Feest" one sheet. With
// "--svg <folder>" first, the drawings themselves are written there, for a drawing program. README.md
// tells of the hand and of the files. Drawings are rendered twice too large and made smaller, so that
// edges come out smooth; line drawings and sheets, large as they are, in their own size.
import { createRequire } from 'node:module';
import { mkdirSync, readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { achtergronden } from './libraries/achtergronden.mjs';
import { frames } from './libraries/frames.mjs';
import { maskers } from './libraries/maskers.mjs';
import { cells } from './libraries/pijlen.mjs';
import { templates } from './libraries/templates.mjs';

// Installed where the script is started, not beside it.
const require = createRequire(`${process.cwd()}/`);
const { Resvg } = require('@resvg/resvg-js');
const sharp = require('sharp');

const source = new URL('.', import.meta.url);
const target = new URL('../', source);
const font = { loadSystemFonts: false, fontFiles: ['/usr/share/fonts/opentype/urw-base35/Z003-MediumItalic.otf'],
  fontDirs: ['/usr/share/fonts/truetype/liberation'] };
const given = process.argv.slice(2);
const drawings = given[0] === '--svg' ? `${given.splice(0, 2)[1]}/` : '';
const [onlyFolder, onlyName] = given;

const svgOf = ({ width, height, inner }) =>
  `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${width} ${height}">${inner}</svg>`;

function render({ width, height, scale, ...drawing }) {
  const png = new Resvg(svgOf({ width, height, ...drawing }), { fitTo: { mode: 'width', value: width * scale }, background: '#fff', font }).render().asPng();
  return sharp(png).resize(width, height, { kernel: 'cubic' }).flatten({ background: '#fff' });
}

const jpeg = (quality, mozjpeg) => (picture) => picture.jpeg({ quality, chromaSubsampling: '4:4:4', mozjpeg }).toBuffer();

/** Three bits less a colour part: half the file, and no difference to be seen. White stays white. */
async function coarsePng(picture) {
  const { data, info: { width, height } } = await picture.removeAlpha().raw().toBuffer({ resolveWithObject: true });
  const coarse = data.map((byte) => (byte >= 252 ? 255 : (byte + 4) & 248));
  return sharp(coarse, { raw: { width, height, channels: 3 } }).png({ compressionLevel: 9, adaptiveFiltering: true }).toBuffer();
}

const greyPng = (picture) => picture.toColourspace('b-w').png({ palette: true, colours: 16, dither: 0, compressionLevel: 9 }).toBuffer();

/**
 * The rim of a sticker, as if cut from paper. Rim and sticker stay a shade below white, so that only what lies
 * around them goes with a white background.
 */
const rim = `<filter id="rand" filterUnits="userSpaceOnUse" x="0" y="0" width="1650" height="360" color-interpolation-filters="sRGB">
  <feMorphology in="SourceAlpha" operator="dilate" radius="5"/><feGaussianBlur stdDeviation="2.5"/>
  <feComponentTransfer><feFuncA type="linear" slope="9" intercept="-3.6"/></feComponentTransfer>
  <feComposite in2="SourceGraphic" operator="over" result="shape"/><feFlood flood-color="#fffcf4"/><feComposite in2="shape" operator="in" result="paper"/>
  <feMerge><feMergeNode in="paper"/><feMergeNode in="SourceGraphic"/></feMerge>
  <feComponentTransfer><feFuncR type="linear" slope=".972"/><feFuncG type="linear" slope=".972"/><feFuncB type="linear" slope=".972"/></feComponentTransfer></filter>`;

const numbered = (folder, name, list, encode) => list.map(([{ width, height }, inner], i) => {
  const number = String(i + 1).padStart(3, '0');
  return { folder, key: String(i + 1), file: `${name}-${number}.jpg`, width, height, inner, scale: 2, encode };
});

/** The SVG files of a folder; `wrap` gets a file's text and gives what is drawn. */
const drawn = (from, folder, extension, encode, wrap = (svg) => svg) =>
  readdirSync(new URL(from, source)).filter((file) => file.endsWith('.svg')).map((file) => {
    const svg = readFileSync(new URL(from + file, source), 'utf8');
    const [, width, height] = svg.match(/ width="(\d+)" height="(\d+)"/).map(Number);
    const key = file.replace('.svg', '');
    return { folder, key, file: key + extension, width, height, inner: wrap(svg), scale: 1, encode };
  });

const arrows = cells.map((cell, i) =>
  `<svg x="${(i % 4) * 100}" y="${Math.floor(i / 4) * 100}" width="100" height="100" viewBox="0 0 100 100">${cell}</svg>`).join('');

const pictures = [
  ...numbered('Frames', 'Frame', frames, jpeg(90, true)),
  ...numbered('Templates', 'Template', templates, jpeg(90, true)),
  ...numbered('Achtergronden', 'Achtergrond', achtergronden, jpeg(90, true)),
  ...numbered('Maskers', 'Masker', maskers, jpeg(100, false)),
  { folder: 'Data', key: 'Arrows', file: 'Arrows.arr', width: 400, height: 2000, inner: arrows, scale: 2, encode: coarsePng },
  ...drawn('stickers/', 'Stickers', '.art', coarsePng, (svg) => `${rim}<g filter="url(#rand)">${svg}</g>`),
  ...drawn('vectors/', 'Vectors', '.vec', greyPng),
];

for (const picture of pictures) {
  const { folder, key, file, encode } = picture;
  if ((onlyFolder && folder !== onlyFolder) || (onlyName && key !== onlyName)) {
    continue;
  }
  if (drawings) {
    writeFileSync(drawings + file.replace(/\.\w+$/, '.svg'), svgOf(picture));
    continue;
  }
  mkdirSync(new URL(`${folder}/`, target), { recursive: true });
  const bytes = await encode(render(picture));
  writeFileSync(new URL(`${folder}/${file}`, target), bytes);
  console.log(`${folder}/${file}: ${bytes.length} bytes`);
}
