import SwiftUI

struct Alternate: View {
	
	static let intrinsicSize = CGSize(width: 120, height: 80)
	
	static let fade = LinearGradient(
		gradient: Gradient(colors: [
			Color(0x102030),
			Color(white: 0.5)
		]),
		startPoint: .leading, endPoint: .trailing
	)
	
	struct Soft: ViewModifier {
		
		func body(content: Content) -> some View {
			content
				.blur(radius: 1.23)
		}
	}
	
	struct PathView1: View { // SVGPath

		struct PathShape1: Shape {

			func path(in rect: CGRect) -> Path {
				Path { path in
					path.addLines([
						CGPoint(x: 1, y: 1),
						CGPoint(x: 5, y: 1),
						CGPoint(x: 5, y: 5)
					])
					path.closeSubpath()
					path.move(to: CGPoint(x: 7, y: 7))
					path.addLine(to: CGPoint(x: 9, y: 9))
					path.closeSubpath()
				}
			}
		}
		
		var body: some View {
			ZStack {
				PathShape1()
					.fill(Color(0xFF8000))
				PathShape1()
					.stroke(Color.black, style: StrokeStyle(lineCap: .square))
			}
			.blur(radius: 1.23)
		}
	}
	
	struct Reactangle1: View {
		
		var body: some View {
			ZStack {
				Rectangle()
					.fill(Alternate.fade)
				Rectangle()
					.stroke(Color.red)
			}
		}
	}
	
	struct Circle1: View {
		
		var body: some View {
			Circle()
				.fill(Color(0x14283C))
				.offset(x: 1, y: 2.12)
		}
	}
	
	var isResizable = false
	func resizable() -> Self { Self(isResizable: true) }
	
	var body: some View {
		if isResizable {
			GeometryReader { proxy in
				ZStack(alignment: .topLeading) {
					PathView1()
					Reactangle1()
						.frame(width: 20, height: 20, alignment: .topLeading)
						.position(x: 10, y: 10)
					Circle1()
						.frame(width: 20, height: 20, alignment: .topLeading)
						.position(x: 50, y: 30)
					Text(verbatim: "Tab	\"verbatim\"")
						.foregroundColor(Color(0xFF0000))
						.font(.system(size: 9, weight: .bold))
						.offset(x: 12.5, y: 0)
						.alignmentGuide(.bottom) { $0[.firstTextBaseline] }
						.frame(width: .infinity, height: 70, alignment: .bottom)
				}
				.frame(width: 120, height: 80,
				       alignment: .topLeading)
				.scaleEffect(x: proxy.size.width  / 120,
				             y: proxy.size.height / 80)
				.frame(width: proxy.size.width, height: proxy.size.height)
			}
		}
		else {
			ZStack(alignment: .topLeading) {
				PathView1()
				Reactangle1()
					.frame(width: 20, height: 20, alignment: .topLeading)
					.position(x: 10, y: 10)
				Circle1()
					.frame(width: 20, height: 20, alignment: .topLeading)
					.position(x: 50, y: 30)
				Text(verbatim: "Tab	\"verbatim\"")
					.foregroundColor(Color(0xFF0000))
					.font(.system(size: 9, weight: .bold))
					.offset(x: 12.5, y: 0)
					.alignmentGuide(.bottom) { $0[.firstTextBaseline] }
					.frame(width: .infinity, height: 70, alignment: .bottom)
			}
			.frame(width: 120, height: 80)
		}
	}
}

fileprivate extension Color {
	init(_ rgb: UInt32, opacity: Double = 1.0) {
		self.init(red     : Double((rgb >> 16) & 0xFF) / 255.0,
		          green   : Double((rgb >>  8) & 0xFF) / 255.0,
		          blue    : Double( rgb        & 0xFF) / 255.0,
		          opacity : opacity)
	}
}

struct Alternate_Previews: PreviewProvider {
	
	static var previews: some View {
		VStack {
			Alternate()
				.resizable()
				.frame(width  : 2 * Alternate.intrinsicSize.width,
				       height : 2 * Alternate.intrinsicSize.height)
				.background(Color.clear.border(Color.green))
				.padding()
			Text("Size: 120.0x80.0").padding(.bottom)
		}
	}
}
